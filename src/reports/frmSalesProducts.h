#pragma once

#include "reports/PeriodReport.h"

// What was sold of each product. A product that was renamed meanwhile has a line for each of its names.
class frmSalesProducts : public PeriodReport {
    Q_OBJECT

public:
    frmSalesProducts();
};
