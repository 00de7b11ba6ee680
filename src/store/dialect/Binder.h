#pragma once

#include "store/dialect/Bound.h"

namespace store::dialect {

// Looks up the names of a tree in a schema and types its expressions. `text` is only for the errors.
//
// A name in a SELECT column is a field, else the alias of an earlier column; WHERE, ON and GROUP BY know fields only;
// HAVING and ORDER BY know fields, then aliases.
BoundStatement Bind(const Statement& statement, const Schema& schema, const QString& text);
// A criteria text over the fields of one table; only `where` and `tables` are filled.
BoundStatement BindCriteria(const ExprPtr& condition, const Table& table, const QString& text);

}  // namespace store::dialect
