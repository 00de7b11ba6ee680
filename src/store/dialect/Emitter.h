#pragma once

#include "store/dialect/Bound.h"
#include "store/dialect/Plan.h"

namespace store::dialect {

// The engine's SQL for a bound query of so many literals. Throws QueryError 3075 when the engine's own parser could not
// take it; `text` is only for that.
//
// Relied on in the engine: the collation VELTON on text columns, velton_val(text), velton_like(pattern, text). A table
// that stands alone goes without qualifiers, so that an expression reads as in the index over it. An alias is written
// out as what it stands for. A number too large for an assignment raises the engine's "integer overflow".
Plan Emit(const BoundStatement& statement, int literals, const QString& text);

}  // namespace store::dialect
