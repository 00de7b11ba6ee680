#pragma once

#include "reports/PeriodReport.h"

// The tax of each rate, from the lines of the invoices. The rate is that of the tax as it stands now.
class frmSalesTax : public PeriodReport {
    Q_OBJECT

public:
    frmSalesTax();
};
