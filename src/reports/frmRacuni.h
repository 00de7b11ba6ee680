#pragma once

#include "reports/PeriodReport.h"

// The invoices of a day or period, in the order of their receipt numbers, and their reprint. Its keys differ from those
// of the other reports: F4 prints the invoices, F5 saves the list.
class frmRacuni : public PeriodReport {
    Q_OBJECT

public:
    frmRacuni();

private:
    void cmdPrintPregled_Click();
    void cmdPrintPregled1_Click();

    void PreviewInvoices(const QString& where);
};
