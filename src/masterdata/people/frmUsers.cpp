#include "masterdata/people/frmUsers.h"

#include <QScopedValueRollback>

#include "core/FillList.h"
#include "core/Session.h"
#include "core/dbModule.h"
#include "masterdata/people/frmEditUser.h"
#include "masterdata/people/frmNewUser.h"

using namespace Qt::StringLiterals;

namespace {

const auto UsersQuery = u"SELECT * FROM Users"_s;
const auto UserQuery = u"SELECT * FROM Users WHERE UserID = '%1'"_s;

}  // namespace

frmUsers::frmUsers()
    : TableList({.name = u"frmUsers"_s,
                 .title = tr("User - Cashier"),
                 .columns = {{tr("UserID"), Qt::AlignLeft, 110},
                             {tr("UserName"), Qt::AlignLeft, -1},
                             {tr("Access Level"), Qt::AlignLeft, 140}},
                 .rowQuery = UserQuery,
                 .isProtected = tr("Cashier protected from deletion, but you can modify the data."),
                 .deleted = tr("User deleted.")}) {}

void frmUsers::ShowRows() {
    FillUserGrid(MainStore().OpenListing(UsersQuery));
}

void frmUsers::FillUserGrid(store::Listing users) {
    FillList(*ui.lv1, std::move(users), {{u"UserID"_s}, {u"UserName"_s}, {u"AccLevel"_s}});
}

void frmUsers::ShowNew() {
    frmNewUser().ShowModal();
}

void frmUsers::ShowEdit() {
    const QScopedValueRollback<QPointer<forms::Form>> caller(CallerForm, this);
    frmEditUser().ShowModal();
}

QString frmUsers::DeleteQuestion(store::Recordset& user) const {
    return tr("User Cashier: %1\nPassword: %2\nAre you sure you want to delete this user?")
        .arg(user[u"UserName"].TextOrEmpty(), QString(user[u"Password"].TextOrEmpty().size(), u'*'));
}
