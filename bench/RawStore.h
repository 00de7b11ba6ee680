#pragma once

#include <sqlite3.h>

#include <QByteArray>
#include <QString>
#include <utility>

namespace bench {

// A prepared statement used by hand, with no more around it than the calls themselves.
class RawStatement {
public:
    RawStatement(sqlite3* connection, const char* sql);
    RawStatement(RawStatement&& other) noexcept : statement_(std::exchange(other.statement_, nullptr)) {}
    RawStatement& operator=(RawStatement&&) = delete;
    ~RawStatement() { sqlite3_finalize(statement_); }

    // Bound texts must live until the next Reset.
    void Bind(int parameter, qint64 value) { sqlite3_bind_int64(statement_, parameter, value); }
    void Bind(int parameter, const QByteArray& text) {
        sqlite3_bind_text(statement_, parameter, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC);
    }
    bool Step() {
        const int code = sqlite3_step(statement_);
        if (code == SQLITE_ROW) return true;
        if (code != SQLITE_DONE) Fail();
        return false;
    }
    void Reset() { sqlite3_reset(statement_); }

    qint64 Integer(int column) { return sqlite3_column_int64(statement_, column); }
    const char* Bytes(int column) { return reinterpret_cast<const char*>(sqlite3_column_text(statement_, column)); }
    QString Text(int column) {
        const char* bytes = Bytes(column);
        return QString::fromUtf8(bytes, sqlite3_column_bytes(statement_, column));
    }

private:
    [[noreturn]] void Fail() const;
    sqlite3_stmt* statement_;
};

// SQLite by hand on a store's file: the same text rules, cache and log as the store's own connection, commits that
// reach the disk when SyncLog is called.
class RawStore {
public:
    explicit RawStore(const QString& path);
    RawStore(const RawStore&) = delete;
    RawStore& operator=(const RawStore&) = delete;
    ~RawStore() { sqlite3_close(connection_); }

    RawStatement Prepare(const char* sql) { return {connection_, sql}; }
    qint64 ChangedRows() const { return sqlite3_total_changes64(connection_); }
    void SyncLog();

private:
    sqlite3* connection_ = nullptr;
};

}  // namespace bench
