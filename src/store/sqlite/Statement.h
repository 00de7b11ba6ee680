#pragma once

#include <sqlite3.h>

#include <string>
#include <utility>

#include "store/RowBlock.h"
#include "store/dialect/Plan.h"

namespace store::sqlite {

// One prepared statement. The library's own hands every cell out as an object that shares the statement, which makes a
// walk over a table half as slow again, and binds no text with a zero in it without a copy; so the rows are read here.
class Statement {
public:
    Statement() = default;
    Statement(sqlite3* connection, const std::string& sql);
    Statement(Statement&& other) noexcept : statement_(std::exchange(other.statement_, nullptr)) {}
    Statement& operator=(Statement&& other) noexcept {
        std::swap(statement_, other.statement_);
        return *this;
    }
    ~Statement() { sqlite3_finalize(statement_); }

    explicit operator bool() const { return statement_ != nullptr; }

    // Bound texts must live until the statement is reset. Parameters count from 1; one that the statement does not have
    // is passed over, since a piece of a query need not use all of its literals.
    void Bind(int parameter, const dialect::BoundValue& value);
    void Bind(int parameter, qint64 integer);
    void BindAll(const QList<dialect::BoundValue>& values);

    // True when there is a row.
    bool Step();
    void Reset() noexcept { sqlite3_reset(statement_); }

    qint64 Integer(int column) const { return sqlite3_column_int64(statement_, column); }
    bool IsNull(int column) const { return sqlite3_column_type(statement_, column) == SQLITE_NULL; }
    QString Text(int column) const;
    int Parameters() const { return sqlite3_bind_parameter_count(statement_); }
    int Columns() const { return sqlite3_column_count(statement_); }
    // The current row from a column on is added to a block of Columns() - first columns.
    void AppendRow(RowBlock& rows, int first) const;

private:
    void Check(int code) const;

    sqlite3_stmt* statement_ = nullptr;
};

// Resets a statement at the end of its use, so that its read transaction ends with it.
class StatementUse {
public:
    explicit StatementUse(Statement& statement) : statement_(statement) {}
    ~StatementUse() { statement_.Reset(); }
    StatementUse(const StatementUse&) = delete;
    StatementUse& operator=(const StatementUse&) = delete;

private:
    Statement& statement_;
};

}  // namespace store::sqlite
