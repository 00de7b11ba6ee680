#include "masterdata/people/UserEntry.h"

#include "forms/OneLine.h"

using namespace Qt::StringLiterals;

UserEntry::UserEntry(const QString& name, const QString& title) {
    setObjectName(name);
    ui.setupUi(this);
    setWindowTitle(title);
    HighlightOnFocus({ui.txtUserID, ui.txtUserName});
    Keypad({ui.txtUserID}, forms::KeypadKeys::Code);
    Keypad({ui.txtUserName}, forms::KeypadKeys::Text);
    EnterPassword(ui.txtPassword, ui.txtReTypePassword, ui.chkUnmaskPassword);
    SaveHelpAndClose(ui.cmdAdd, ui.cmdHelp, ui.cmdClose);
    FunctionKeys({{Qt::Key_Escape, Guarded(&UserEntry::ClearUserFields)}});
    On(ui.cmdAdd, &UserEntry::cmdAdd_Click);
}

void UserEntry::ClearUserFields() {
    for (QLineEdit* box :
         {ui.txtUserID, ui.txtUserName, ui.txtName, ui.txtPosition, ui.txtPassword, ui.txtReTypePassword})
        box->clear();
    ui.cboAccLevel->setCurrentIndex(-1);
}

// A password may be empty.
void UserEntry::cmdAdd_Click() {
    if (!AllFilled({ui.txtUserID, ui.txtUserName, ui.cboAccLevel})) return;
    if (!PasswordsAgree()) return;
    const QString duplicate = tr("User with this UserID or a UserName already exists.Change Username!");
    if (Trapped([this] { Save(); }, duplicate)) Unload();
}

// The password must be confirmed at each save, so its second box stays empty. A level that the box does not offer is
// shown as none, and has to be chosen anew.
void UserEntry::ShowUser() {
    forms::ShowWhole(ui.txtUserID, rsUsers_[u"UserID"].TextOrEmpty());
    forms::ShowWhole(ui.txtUserName, rsUsers_[u"UserName"].TextOrEmpty());
    ui.txtName->setText(rsUsers_[u"UserFullName"].TextOrEmpty());
    ui.txtPosition->setText(rsUsers_[u"UserPosition"].TextOrEmpty());
    ui.cboAccLevel->setCurrentIndex(ui.cboAccLevel->findText(rsUsers_[u"AccLevel"].TextOrEmpty()));
    forms::ShowWhole(ui.txtPassword, rsUsers_[u"Password"].TextOrEmpty());
}

void UserEntry::StoreUser() {
    rsUsers_[u"UserID"] = ui.txtUserID->text();
    rsUsers_[u"UserName"] = ui.txtUserName->text();
    rsUsers_[u"UserFullName"] = ui.txtUserName->text();
    rsUsers_[u"UserPosition"] = u""_s;
    rsUsers_[u"AccLevel"] = ui.cboAccLevel->currentText();
    rsUsers_[u"Password"] = ui.txtPassword->text();
}
