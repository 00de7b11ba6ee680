#pragma once

#include "reports/PeriodReport.h"

// One line a day with the range of its receipt numbers, for the book of issued invoices.
class frmIzvjestajKIF : public PeriodReport {
    Q_OBJECT

public:
    frmIzvjestajKIF();
};
