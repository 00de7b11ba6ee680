#pragma once

#include "forms/Form.h"
#include "ui_frmAbout.h"

// What this program is, its version, and the licences of it and of what it is made of.
class frmAbout : public forms::Form {
    Q_OBJECT

public:
    frmAbout();

private:
    void cmdOK_Click();

    Ui::frmAbout ui;
};
