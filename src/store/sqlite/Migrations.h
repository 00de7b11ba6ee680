#pragma once

#include "store/Schema.h"

namespace SQLite {
class Database;
}

namespace store::sqlite {

// One step forward. It runs inside a transaction and must not rely on how the schema looks today beyond its own change.
using Migration = void (*)(SQLite::Database&);

// The step from a version of a schema to the next; a version that there never was throws 3343.
Migration MigrationFrom(const Schema& schema, int version);

}  // namespace store::sqlite
