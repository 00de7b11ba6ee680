#include "manager/ManagerLogin.h"

#include "core/AccessLevels.h"
#include "core/Session.h"
#include "core/UserList.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto UsersQuery = u"SELECT * FROM Users"_s;
const auto UserCriteria = u"UserName = %1"_s;

}  // namespace

ManagerLogin::ManagerLogin(std::function<void()> loggedIn) : loggedIn_(std::move(loggedIn)) {
    ui.setupUi(this);
    ui.cboUser->setCompleter(nullptr);
    ui.cboUser->setInsertPolicy(QComboBox::NoInsert);
    HighlightOnFocus({ui.cboUser, ui.txtPassword});
    EnterMovesOn({ui.cboUser});
    ControlKeys(ui.txtPassword, {{Qt::Key_Return, Guarded(&ManagerLogin::cmdLogin_Click)}});
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose}});
    On(ui.cmdLogin, &ManagerLogin::cmdLogin_Click);
    On(ui.cmdClose, &ManagerLogin::cmdClose_Click);
}

void ManagerLogin::Form_Load() {
    auto users = MainStore().OpenRecordset(UsersQuery);
    ListUserNames(*ui.cboUser, users);
    ui.cboUser->setFocus();
}

void ManagerLogin::cmdLogin_Click() {
    auto user = MainStore().OpenRecordset(UsersQuery);
    user.FindFirst(UserCriteria.arg(Quoted(ui.cboUser->currentText())));
    // One answer for all, so that nobody learns what was wrong.
    if (user.NoMatch() || user[u"Password"].IsNull() || user[u"Password"].Text() != ui.txtPassword->text() ||
        !IsOwner(user[u"AccLevel"].TextOrEmpty())) {
        ui.txtPassword->clear();
        ui.txtPassword->setFocus();
        return forms::Tell(tr("This name and password are not those of a user of level 3."), forms::Icon::Critical,
                           Caption());
    }
    TheSession.SessionUserID = user[u"UserID"].TextOrEmpty();
    TheSession.SessionUserName = user[u"UserFullName"].TextOrEmpty();
    loggedIn_();
    Unload();
}

void ManagerLogin::cmdClose_Click() {
    Unload();
    forms::EndProgram();
}

}  // namespace manager
