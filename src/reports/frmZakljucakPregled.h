#pragma once

#include "reports/PeriodReport.h"

// The work periods by the day they began, open and closed alike, one by one or summed by register or by day.
class frmZakljucakPregled : public PeriodReport {
    Q_OBJECT

public:
    frmZakljucakPregled();
};
