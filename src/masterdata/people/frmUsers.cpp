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
                 .title = u"User - Cashier"_s,
                 .columns = {{u"UserID"_s, Qt::AlignLeft, 110},
                             {u"UserName"_s, Qt::AlignLeft, -1},
                             {u"Access Level"_s, Qt::AlignLeft, 140}},
                 .rowQuery = UserQuery,
                 .isProtected = u"Cashier protected from deletion, but you can modify the data."_s,
                 .deleted = u"User deleted."_s}) {}

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
    return u"User Cashier: "_s + user[u"UserName"].TextOrEmpty() + u"\nPassword: "_s +
           QString(user[u"Password"].TextOrEmpty().size(), u'*') + u"\nAre you sure you want to delete this user?"_s;
}
