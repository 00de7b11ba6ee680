#pragma once

#include <string>
#include <vector>

#include "store/Migrations.h"
#include "store/postgres/Connection.h"

namespace store::postgres {

// A schema in the server's words. Everything of a shop lies in a schema of its own:
//
// - a table for each, with the names of its columns; a text is text, a double double precision, all else bigint, in the
//   units of Conversion.h. Beside every text column "X" stands "X_folded", which the server fills by velton_fold, and
//   where no column numbers itself "RowKey", the rows' identity.
// - velton_store, one row: the kind of store and its version.
// - velton_burst, a sequence that is only there to be written.
// - functions: velton_fold(text) folds the case as CaseFold.h does, velton_val(text) is values::Val,
//   velton_pattern(text) a pattern of LikePattern.h as one of the server's own, velton_rounded(bigint, bigint) divides
//   and velton_scaled(double precision, bigint) multiplies, each rounding half to even.
std::vector<std::string> SchemaSql(const Schema& schema, const QString& name);
// One step forward, from a version to the next.
std::vector<std::string> MigrationSql(const Schema& schema, int fromVersion);

std::vector<std::string> FunctionsSql();

// What a schema says and the server lacks, as Table.Column and Table.Column+Column.
QStringList MissingColumns(Connection& connection, const Schema& schema);
QStringList MissingIndexes(Connection& connection, const Schema& schema);

}  // namespace store::postgres
