#pragma once

#include "store/sqlite/SqliteEngine.h"

namespace store::sqlite {

// What a plan needs over and over, prepared when it is first needed.
struct SqliteEngine::Prepared {
    explicit Prepared(std::shared_ptr<Connection> itsConnection) : connection(std::move(itsConnection)) {}

    Statement& Get(Statement& slot, const auto& sql) const {
        if (!slot) slot = Statement(connection->Handle(), sql());
        return slot;
    }

    std::shared_ptr<Connection> connection;
    Statement whole;  // the query as it stands, or the action
    Statement oneRow;
    Statement after;
    Statement keysAfter;
};

}  // namespace store::sqlite
