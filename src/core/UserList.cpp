#include "core/UserList.h"

void ListUserNames(QComboBox& box, store::Recordset& users) {
    box.clear();
    for (auto& user : users) box.addItem(user[u"UserName"].TextOrEmpty());
    box.setCurrentIndex(-1);
}
