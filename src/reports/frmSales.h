#pragma once

#include "reports/PeriodReport.h"

// What each cashier sold, by day or in total, whether an End Report has closed it or not.
class frmSales : public PeriodReport {
    Q_OBJECT

public:
    frmSales();
};
