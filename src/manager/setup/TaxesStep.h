#pragma once

#include "manager/setup/RowsStep.h"
#include "ui_TaxesStep.h"

namespace manager {

// The tax rates of the shop.
class TaxesStep : public RowsStep {
    Q_OBJECT

public:
    TaxesStep();

protected:
    void Write(store::Recordset& tax) const override;
    std::pair<QString, QWidget*> Fault() const override;
    QString WhyItStays(store::Recordset& tax) const override;

private:
    Ui::TaxesStep ui;
};

}  // namespace manager
