#pragma once

#include <variant>

#include "store/Schema.h"

namespace store {

struct AddedColumn {
    QString table;
    Column column;
};

struct AddedIndex {
    QString table;
    Index index;
};

// One step forward, as an engine carries it out: all of its changes or none. It says nothing of how the schema looks
// today beyond them.
using Migration = QList<std::variant<AddedColumn, AddedIndex>>;

// The step from a version of a schema to the next; a version that there never was throws 3343.
const Migration& MigrationFrom(const Schema& schema, int version);

}  // namespace store
