#pragma once

#include <QStringList>

namespace upkeep {

// What velton.ini, ports.ini and store.ini of a folder say, without what could be a name, an address, a user or a
// password: keys that are known, and of their values only words and kinds that can't be one.
QStringList IniReport(const QString& folder);

}  // namespace upkeep
