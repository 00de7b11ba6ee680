#include "masterdata/people/frmChangePassword.h"

#include "core/Session.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

namespace {

const auto UserQuery = u"SELECT * FROM Users WHERE UserID = '%1'"_s;

}  // namespace

frmChangePassword::frmChangePassword() {
    ui.setupUi(this);
    ui.SSTab1->widget(0)->setObjectName(u"Change password"_s);
    EnterPassword(ui.txtPassword, ui.txtReTypePassword, ui.chkUnmaskPassword);
    SaveHelpAndClose(ui.cmdAdd, ui.cmdHelp, ui.cmdClose, {Qt::Key_Escape, Qt::Key_F12}, u"\\Lozinka.rtf"_s);
    On(ui.cmdAdd, &frmChangePassword::cmdAdd_Click);
    TieToolBar(ui.Tlbr1, {{ui.save, ui.cmdAdd}, {ui.help, ui.cmdHelp}, {ui.close, ui.cmdClose}});
    SpreadToolBar(ui.Tlbr1);
}

void frmChangePassword::Form_Load() {
    rsUsers_ = MainStore().OpenRecordset(UserQuery.arg(TheSession.SessionUserID));
    ShowPasswordUser();
}

void frmChangePassword::cmdAdd_Click() {
    if (!AllFilled({ui.txtUserID, ui.txtUserName, ui.txtPassword})) return;
    if (!PasswordsAgree()) return;
    const auto save = [this] {
        rsUsers_.Edit();
        StoreNewPassword();
        rsUsers_.Update();
        forms::Inform(tr("Password changed."), Caption());
    };
    if (Trapped(save, tr("User with this code or a name already exists.Change name!"))) Unload();
}

void frmChangePassword::ShowPasswordUser() {
    ui.txtUserID->setText(rsUsers_[u"UserID"].TextOrEmpty());
    ui.txtUserName->setText(rsUsers_[u"UserName"].TextOrEmpty());
}

void frmChangePassword::StoreNewPassword() {
    rsUsers_[u"Password"] = ui.txtPassword->text();
}
