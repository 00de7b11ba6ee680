#pragma once

#include "config/OptionsRecord.h"
#include "support/OfficeForm.h"
#include "ui_frmMreza.h"

// The server's path and the register's number, a dialog of their own beside the fourth tab of the settings. Both work
// from the next start on.
class frmMreza : public OfficeForm {
    Q_OBJECT

public:
    frmMreza();

protected:
    void Form_Load() override;

private:
    void cmdOK_Click();

    Ui::frmMreza ui;
    OptionsRecord rsOptions_;
};
