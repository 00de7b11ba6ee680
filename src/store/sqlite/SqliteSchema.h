#pragma once

#include <string>

#include "store/Schema.h"

namespace store::sqlite {

class Connection;

// A schema in the engine's own words: a text is TEXT under the store's own collation, a double REAL, all else INTEGER,
// in the units of Conversion.h.
std::string TableSql(const Table& table);
std::string IndexSql(const QString& table, const Index& index);
// Stands in the file's head, so that one kind of store is not taken for another.
qint32 ApplicationId(const Schema& schema);

// Writes a whole schema into an empty file, as one commit.
void BuildSchema(Connection& connection, const Schema& schema);
// The indexes of a schema that a file lacks, as Table.Column+Column.
QStringList MissingIndexes(Connection& connection, const Schema& schema);
// Takes an older file to the schema's version, one commit a step; other processes may try the same at once.
void MigrateSchema(Connection& connection, const Schema& schema);

}  // namespace store::sqlite
