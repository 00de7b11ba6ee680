#pragma once

#include "reports/PeriodReport.h"

// The tax of each day or of each invoice, from the heads of the invoices.
class frmTaxbyInvoice : public PeriodReport {
    Q_OBJECT

public:
    frmTaxbyInvoice();
};
