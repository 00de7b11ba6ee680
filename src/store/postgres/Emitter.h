#pragma once

#include "store/dialect/Plan.h"
#include "store/postgres/ExprEmitter.h"

namespace store::postgres {

// A plan as SQL. Of a query over one table the rows' identities stand before the columns.
struct ServerQuery {
    std::string whole;        // the query as it stands, or the action; of a criteria the identities that meet it
    std::string one;          // the row of an identity: one more parameter
    std::string some;         // the rows of identities, in no order: one more, an array
    std::string after;        // the rows behind an identity up to a last one, by identity: two more; it ends before how
                              // many, which the server must know to plan it once and not each time anew
    std::vector<Slot> slots;  // of the whole
    size_t columnSlots = 0;   // the first so many are those of the three others
};

// Relied on: what ServerSchema.h puts into a schema. Rows come in the order that Engine.h tells.
ServerQuery Emit(const dialect::Plan& plan);

// The column of a table that holds its rows' identities.
QString KeyColumn(const Table& table);
// The sequence that gives them, as the server's functions take it.
std::string SequenceSql(const Table& table);

}  // namespace store::postgres
