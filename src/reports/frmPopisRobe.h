#pragma once

#include "reports/ListReport.h"

// The goods as an inventory list, 80 columns wide, with the tax taken out of the total.
class frmPopisRobe : public ListReport {
    Q_OBJECT

public:
    frmPopisRobe();

protected:
    void Form_Load() override;
    void PrintReport(const QString& mode) override;
    void cmdPrint_Click() override;

private:
    void TakeTaxOut();
};
