#include "masterdata/people/PasswordEntry.h"

#include <algorithm>

#include "forms/MsgBox.h"

void PasswordEntry::EnterPassword(QLineEdit* password, QLineEdit* again, QCheckBox* unmask) {
    Keypad({password, again}, forms::KeypadKeys::Text);
    password_ = password;
    again_ = again;
    unmask_ = unmask;
    HighlightOnFocus({password, again});
    On(unmask, &PasswordEntry::chkUnmaskPassword_Click);
    // A stored password that is longer than one may be typed must be confirmed in full.
    connect(password, &QLineEdit::textChanged, again, [again, length = again->maxLength()](const QString& text) {
        again->setMaxLength(std::max(length, static_cast<int>(text.size())));
    });
}

bool PasswordEntry::PasswordsAgree() {
    if (password_->text() == again_->text()) return true;
    forms::Tell(tr("Different passwords!"), forms::Icon::Warning, tr("Different passwords"));
    password_->clear();
    again_->clear();
    password_->setFocus();
    return false;
}

void PasswordEntry::chkUnmaskPassword_Click() {
    const auto mode = unmask_->isChecked() ? QLineEdit::Normal : QLineEdit::Password;
    password_->setEchoMode(mode);
    again_->setEchoMode(mode);
}
