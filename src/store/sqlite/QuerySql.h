#pragma once

#include <string>

#include "store/dialect/Plan.h"

namespace store::sqlite {

// The pieces of a plan put together. `withRow` puts the row's identity before the columns.
std::string SelectSql(const dialect::Plan& plan, bool withRow);
// The columns of a one-table plan under a condition and order of the engine's own.
std::string RowsSql(const dialect::Plan& plan, const std::string& condition);
// The identities of a one-table plan's rows that meet one more condition, rising.
std::string KeysSql(const dialect::Plan& plan, const std::string& condition);
std::string ActionSql(const dialect::Plan& plan);
std::string FindSql(const Table& table, const dialect::Plan& criteria);

// Writes to sets of columns, given as bits; the parameters come in the table's order: the columns written, the row's
// identity, the columns expected to be as they were.
std::string InsertSql(const Table& table, quint64 columns);
std::string ChangeSql(const Table& table, quint64 columns, quint64 expected);

std::string Parameter(int number);

}  // namespace store::sqlite
