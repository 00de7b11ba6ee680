#pragma once

#include "masterdata/people/PasswordEntry.h"
#include "store/Recordset.h"
#include "ui_frmChangePassword.h"

// Who is logged in takes another password, without being asked for the old one.
class frmChangePassword : public PasswordEntry {
    Q_OBJECT

public:
    frmChangePassword();

protected:
    void Form_Load() override;

private:
    void cmdAdd_Click();

    void ShowPasswordUser();
    void StoreNewPassword();

    Ui::frmChangePassword ui;
    store::Recordset rsUsers_;
};
