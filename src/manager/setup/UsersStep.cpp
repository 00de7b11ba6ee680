#include "manager/setup/UsersStep.h"

#include "core/AccessLevels.h"
#include "core/Session.h"
#include "core/dbModule.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto UsersQuery = u"SELECT * FROM Users"_s;
const auto UserQuery = u"SELECT * FROM Users WHERE UserID = %1"_s;
const auto OtherOwnersQuery = u"SELECT UserID FROM Users WHERE AccLevel = '%1' AND UserID <> %2"_s;

const auto Owner = QString::number(OwnersLevel);

bool IsLastOwner(const QString& userID) {
    return MainStore().OpenSnapshot(OtherOwnersQuery.arg(Owner, Quoted(userID))).AtEOF();
}

}  // namespace

UsersStep::UsersStep() {
    ui.setupUi(this);
    ui.cboLevel->addItems({u"1"_s, u"2"_s, Owner});
    ui.lstUsers->SetColumns(
        {{tr("Number"), Qt::AlignLeft, 110}, {tr("Name"), Qt::AlignLeft, -1}, {tr("Level"), Qt::AlignLeft, 100}});
    Begin({.list = ui.lstUsers,
           .boxes = {{u"UserID"_s, ui.txtUserID, tr("The user needs a number."), {}},
                     {u"UserName"_s, ui.txtUserName, tr("The user needs a name to log in with."), {}},
                     {u"AccLevel"_s, ui.cboLevel, tr("Choose a level from 1 to 3."), {}},
                     {u"Password"_s, ui.txtUserPassword, {}, {}}},
           .add = ui.cmdNewUser,
           .remove = ui.cmdRemoveUser,
           .query = UsersQuery,
           .rowQuery = UserQuery,
           .duplicate = tr("There is a user with this number or this name already."),
           .isProtected = tr("This user can't be removed, but name, level and password can be changed."),
           .question = tr("Remove the user \"%1\"?")});
}

// The full name is the user name, as the till has it.
void UsersStep::Write(store::Recordset& user) const {
    RowsStep::Write(user);
    user[u"UserFullName"] = ui.txtUserName->text().trimmed();
    user[u"UserPosition"] = u""_s;
}

std::pair<QString, QWidget*> UsersStep::Fault() const {
    if (ui.cboLevel->currentText() != Owner && IsLastOwner(ui.txtUserID->text().trimmed()))
        return {tr("Somebody has to keep level 3, or nobody can set up the shop any more."), ui.cboLevel};
    return {};
}

QString UsersStep::WhyItStays(store::Recordset& user) const {
    const QString number = user[u"UserID"].TextOrEmpty();
    if (number == TheSession.SessionUserID) return tr("This is the user who has logged in here.");
    return IsLastOwner(number) ? tr("Somebody has to keep level 3, or nobody can set up the shop any more.")
                               : QString();
}

}  // namespace manager
