#pragma once

#include <string>

#include "store/dialect/Plan.h"

namespace store::sqlite {

// The parts of a statement as SQL, empty where there is none; QuerySql.h puts them together.
struct Pieces {
    std::string columns, from, where, group, having, order, set;
};

// Throws QueryError 3075 when SQLite's own parser could not take it; `text` is only for that.
//
// Relied on: the collation VELTON on text columns, velton_val(text), velton_like(pattern, text). A table that stands
// alone goes without qualifiers, so that an expression reads as in the index over it. An alias is written out as what
// it stands for. A number too large for an assignment raises SQLite's "integer overflow".
Pieces Emit(const dialect::Plan& plan, const QString& text);

}  // namespace store::sqlite
