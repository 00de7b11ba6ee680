#include "core/UserList.h"

void ListUserNames(QComboBox& box, store::Recordset& users) {
    box.clear();
    QStringList names;
    for (auto& user : users) names << user[u"UserName"].TextOrEmpty();
    box.addItems(names);
    box.setCurrentIndex(-1);
}
