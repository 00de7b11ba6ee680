#pragma once

#include "forms/Form.h"
#include "ui_frmMSGinvoice.h"

// The change dialog: tells how much to give back. The invoice is posted by then; nothing typed here is stored.
class frmMSGinvoice : public forms::Form {
    Q_OBJECT

public:
    frmMSGinvoice();

protected:
    void Form_Load() override;

private:
    void txtCash_Enter();
    void cmdOK_Click();
    // What the keypad offers to be touched instead of typed.
    QStringList LikelyCash() const;

    Ui::frmMSGinvoice ui;
};
