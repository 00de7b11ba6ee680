#pragma once

#include <QCheckBox>

#include "masterdata/EntryForm.h"

// The entry of a password: typed twice, masked until "Show password" is ticked.
class PasswordEntry : public EntryForm {
    Q_OBJECT

protected:
    void EnterPassword(QLineEdit* password, QLineEdit* again, QCheckBox* unmask);

    // Tells that the two boxes differ, empties both and gives false.
    bool PasswordsAgree();

private:
    void chkUnmaskPassword_Click();

    QLineEdit* password_ = nullptr;
    QLineEdit* again_ = nullptr;
    QCheckBox* unmask_ = nullptr;
};
