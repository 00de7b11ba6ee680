#pragma once

#include "store/sqlite/Emitter.h"
#include "store/sqlite/SqliteEngine.h"

namespace store::sqlite {

// What a plan needs over and over: its SQL, and the statements made of it, prepared when they are first needed.
struct SqliteEngine::Prepared {
    Prepared(std::shared_ptr<Connection> itsConnection, Pieces itsSql)
        : connection(std::move(itsConnection)), sql(std::move(itsSql)) {}

    Statement& Get(Statement& slot, const auto& sqlOf) const {
        if (!slot) slot = Statement(connection->Handle(), sqlOf());
        return slot;
    }

    std::shared_ptr<Connection> connection;
    const Pieces sql;
    Statement whole;  // the query as it stands, or the action
    Statement oneRow;
    Statement after;
    Statement keysAfter;
};

}  // namespace store::sqlite
