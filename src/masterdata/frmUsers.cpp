#include "masterdata/frmUsers.h"

#include <QScopedValueRollback>

#include "core/FillList.h"
#include "core/Session.h"
#include "core/dbModule.h"
#include "masterdata/frmEditUser.h"
#include "masterdata/frmNewUser.h"

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
    rsUsers_ = MainStore().OpenRecordset(UsersQuery);
    FillUserGrid();
}

void frmUsers::FillUserGrid() {
    FillList(*ui.lv1, rsUsers_, [](store::Recordset& user) -> QStringList {
        return {user[u"UserID"].TextOrEmpty(), user[u"UserName"].TextOrEmpty(), user[u"AccLevel"].TextOrEmpty()};
    });
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
