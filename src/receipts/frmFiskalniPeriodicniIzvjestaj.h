#pragma once

#include "forms/Form.h"
#include "ui_frmFiskalniPeriodicniIzvjestaj.h"

// The fiscal printer's report on a span of days; the days are sent as they stand, whichever is the later.
class frmFiskalniPeriodicniIzvjestaj : public forms::Form {
    Q_OBJECT

public:
    frmFiskalniPeriodicniIzvjestaj();

protected:
    void Form_Load() override;

private:
    void Command1_Click();
    void CloseForm();

    Ui::frmFiskalniPeriodicniIzvjestaj ui;
};
