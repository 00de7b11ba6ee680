#pragma once

#include "reports/PeriodReport.h"

// Who worked when, from the log of logins, which can be cleared here.
class frmActivity : public PeriodReport {
    Q_OBJECT

public:
    frmActivity();

private:
    void cmdBrisi_Click();
};
