#pragma once

#include "store/dialect/Plan.h"
#include "store/postgres/ExprEmitter.h"

namespace store::postgres {

// A plan as SQL. Of a query over one table the rows' identities stand before the columns.
struct ServerQuery {
    std::string whole;        // the query as it stands, or the action; of a criteria the identities that meet it
    std::string some;         // the rows of identities, in no order: one more parameter, an array
    std::string after;        // the rows behind an identity, by identity: three more, the last one and how many
    std::vector<Slot> slots;  // of the whole
    size_t columnSlots = 0;   // the first so many are those of `some` and `after`
};

// Relied on: what ServerSchema.h puts into a schema. Rows come in the order that Engine.h tells.
ServerQuery Emit(const dialect::Plan& plan);

// The column of a table that holds its rows' identities.
QString KeyColumn(const Table& table);

}  // namespace store::postgres
