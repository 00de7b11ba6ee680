#include "masterdata/people/frmEditUser.h"

#include "core/Session.h"
#include "masterdata/ListedRow.h"
#include "masterdata/TableList.h"

using namespace Qt::StringLiterals;

namespace {

const auto UserQuery = u"SELECT * FROM Users WHERE UserID = '%1'"_s;

}  // namespace

frmEditUser::frmEditUser() : UserEntry(u"frmEditUser"_s, tr("Edit User")) {}

void frmEditUser::Form_Load() {
    rsUsers_ = OpenListedRow(UserQuery.arg(SelectedKey(CallerForm)));
    ShowUser();
}

void frmEditUser::Save() {
    rsUsers_.Edit();
    StoreUser();
    rsUsers_.Update();
}
