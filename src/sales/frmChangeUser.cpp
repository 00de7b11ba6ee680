#include "sales/frmChangeUser.h"

#include "core/UserList.h"
#include "core/dbModule.h"
#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

namespace {

const auto UsersQuery = u"SELECT * FROM Users"_s;
const auto UserQuery = u"SELECT * FROM Users WHERE UserName = '%1'"_s;
const auto UserCriteria = u"UserName = '%1'"_s;

}  // namespace

frmChangeUser::frmChangeUser() {
    ui.setupUi(this);
    ui.txtUserName->setCompleter(nullptr);
    HighlightOnFocus({ui.txtUserName, ui.txtPassword});
    FunctionKeys({{Qt::Key_Escape, ui.cmdCancel}, {Qt::Key_F12, ui.cmdCancel}});
    Keypad({ui.txtUserName}, forms::KeypadKeys::Text);
    EnterMovesOn({ui.txtUserName});
    ControlKeys(ui.txtPassword, {{Qt::Key_Return, Guarded(&frmChangeUser::cmdOK_Click)}});
    On(ui.cmdOK, &frmChangeUser::cmdOK_Click);
    On(ui.cmdCancel, &frmChangeUser::cmdCancel_Click);
}

void frmChangeUser::Form_Load() {
    rsUsers_ = MainStore().OpenRecordset(UsersQuery);
    FillUserList();
}

void frmChangeUser::FillUserList() {
    ListUserNames(*ui.txtUserName, rsUsers_);
}

bool frmChangeUser::PasswordFits(store::Recordset& user) const {
    return !user[u"Password"].IsNull() && user[u"Password"].Text() == ui.txtPassword->text();
}

void frmChangeUser::cmdOK_Click() {
    const QString name = ui.txtUserName->currentText();
    rsUsers_.FindFirst(UserCriteria.arg(name));
    if (rsUsers_.NoMatch()) return forms::Tell(tr("Nonexistent user."), forms::Icon::Critical, Caption());
    if (!PasswordFits(rsUsers_)) return forms::Tell(tr("Wrong password."), forms::Icon::Critical, Caption());
    rsUsers_ = MainStore().OpenRecordset(UserQuery.arg(name));
    forms::Form* screen = mdiORVA::Window().ActiveChild();
    forms::SetText(forms::Control(screen, u"cboID"), rsUsers_[u"UserID"].TextOrEmpty());
    forms::SetText(forms::Control(screen, u"txtUserFullName"), rsUsers_[u"UserFullName"].TextOrEmpty());
    Unload();
}

void frmChangeUser::cmdCancel_Click() {
    Unload();
}

frmChangeUserSimple::frmChangeUserSimple() {
    setObjectName(u"frmChangeUserSimple"_s);
    ui.lblPassword->hide();
    delete ui.txtPassword;
    ui.txtPassword = nullptr;
    resize(width(), minimumSizeHint().height());
    // The arrow keys look for a name in the open list; in the closed box they would take the next one at once.
    const auto openList = [this] { ui.txtUserName->showPopup(); };
    ControlKeys(ui.txtUserName,
                {{Qt::Key_Return, [this] { ui.cmdOK->click(); }}, {Qt::Key_Down, openList}, {Qt::Key_Up, openList}});
    ui.txtUserName->installEventFilter(this);
    connect(ui.txtUserName, &QComboBox::activated, ui.cmdOK, &QPushButton::click);
}

// Nor does a wheel that was touched by the way put another cashier on the invoices.
bool frmChangeUserSimple::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui.txtUserName && event->type() == QEvent::Wheel) return true;
    return frmChangeUser::eventFilter(watched, event);
}
