#pragma once

#include "store/Database.h"

namespace upkeep {

// How many rows a table has.
qint64 CountRows(store::Database& database, const QString& table);

}  // namespace upkeep
