#pragma once

#include <string>
#include <vector>

#include "store/sqlite/Emitter.h"

namespace store::sqlite {

// The pieces of a query put together. `withRow` puts the row's identity before the columns.
std::string SelectSql(const Pieces& query, bool withRow);
// The columns of a one-table query under a condition and order of the engine's own.
std::string RowsSql(const Pieces& query, const std::string& condition);
// The identities of a one-table query's rows that meet one more condition, rising.
std::string KeysSql(const Pieces& query, const std::string& condition);
std::string ActionSql(dialect::Plan::Kind kind, const Pieces& action);
std::string FindSql(const Pieces& criteria);

// Positions in a table's columns, rising.
using ColumnSet = std::vector<int>;

// Writes to sets of columns; the parameters are the columns written, the row's identity, the columns expected to be as
// they were.
std::string InsertSql(const Table& table, const ColumnSet& columns);
std::string ChangeSql(const Table& table, const ColumnSet& columns, const ColumnSet& expected);

}  // namespace store::sqlite
