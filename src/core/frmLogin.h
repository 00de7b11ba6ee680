#pragma once

#include <functional>

#include "forms/Form.h"
#include "store/Recordset.h"
#include "ui_frmLogin.h"

// The start of the program: refuses a second instance, opens both stores, reads the settings, and asks who works.
class frmLogin : public forms::Form {
    Q_OBJECT

public:
    // `loggedIn` shows the sales screen; it runs within a good login, before the menu entries are switched off.
    // `afterwards` gets the access level when the login has done all that it does.
    explicit frmLogin(std::function<void()> loggedIn, std::function<void(const QString& accLevel)> afterwards = {});

    void FillUserList();

protected:
    void Form_Load() override;
    bool Form_Unload() override { return done_; }

private:
    void cmdOK_Click();
    void cmdCancel_Click();
    void Timer1_Timer();

    void StartUp();
    void OpenShop();
    void TryServerAgain();
    void ProposeLoginNumber();
    void WriteLoginRow(store::Recordset& user);
    void StartSession(store::Recordset& user);

    Ui::frmLogin ui;
    QTimer* timer1_;
    QTimer* timer2_;
    QTimer* timer3_;
    store::Recordset rsOptions_;
    store::Recordset rsUsers_;
    store::Recordset rsLogin_;
    qint16 nextLogin_ = 0;
    int countdown_ = 0;           // the limit that the frame's caption promises; nothing counts it down
    bool isWithoutShop_ = false;  // the server did not give it at the start
    bool done_ = false;           // cancelled or logged in: nothing else closes the window
    std::function<void()> loggedIn_;
    std::function<void(const QString&)> afterwards_;
};
