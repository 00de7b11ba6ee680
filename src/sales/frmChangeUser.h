#pragma once

#include "forms/Form.h"
#include "store/Recordset.h"
#include "ui_frmChangeUser.h"

// Another cashier takes over the sales screen, under the login that stands. The session, the log and the menus stay
// as the first login made them.
class frmChangeUser : public forms::Form {
    Q_OBJECT

public:
    frmChangeUser();

    void FillUserList();

protected:
    void Form_Load() override;
    // Whether the typed password opens the row of the chosen user.
    virtual bool PasswordFits(store::Recordset& user) const;

    Ui::frmChangeUser ui;

private:
    void cmdOK_Click();
    void cmdCancel_Click();

    store::Recordset rsUsers_;
};

// The same without a password: choosing a name is enough.
class frmChangeUserSimple : public frmChangeUser {
    Q_OBJECT

public:
    frmChangeUserSimple();

protected:
    bool PasswordFits(store::Recordset&) const override { return true; }
    bool eventFilter(QObject* watched, QEvent* event) override;
};
