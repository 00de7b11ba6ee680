#pragma once

#include "reports/PeriodReport.h"

// The End Reports by the day they were made; opens one of them in the lists of the register's state.
class frmZakljucakPregled1 : public PeriodReport {
    Q_OBJECT

public:
    frmZakljucakPregled1();

protected:
    void Form_Load() override;

private:
    void lv1_Enter();
    void cmdPrintPregledListe_Click();
    void OpenEndReport();
};
