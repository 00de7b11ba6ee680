#include "masterdata/people/frmNewUser.h"

#include "core/dbModule.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

namespace {

const auto UsersQuery = u"SELECT * FROM Users"_s;

}  // namespace

frmNewUser::frmNewUser() : UserEntry(u"frmNewUser"_s, tr("New User")) {}

void frmNewUser::Form_Load() {
    rsUsers_ = MainStore().OpenRecordset(UsersQuery);
}

void frmNewUser::Save() {
    rsUsers_.AddNew();
    StoreUser();
    rsUsers_.Update();
    forms::Inform(tr("New user added."), Caption());
}
