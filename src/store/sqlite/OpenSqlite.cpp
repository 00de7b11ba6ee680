#include "store/sqlite/OpenSqlite.h"

#include <sqlite3.h>

#include <QFileInfo>

#include "store/sqlite/Disk.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/sqlite/SqliteError.h"
#include "store/sqlite/SqliteSchema.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace store::sqlite {

namespace {

constexpr Connection::Patience OpeningPatience = 1500ms;
constexpr Connection::Patience WorkingPatience = 4000ms;

// Looks from outside only: opening and closing the file by hand would drop the locks that another connection of this
// process holds on it.
void CheckFile(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile()) throw StoreError(FileNotFound, u"The store %1 was not found."_s.arg(path));
    if (file.size() == 0) throw StoreError(NotAStore, u"%1 is empty and no store."_s.arg(path));
    constexpr auto anyoneWrites = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (!file.isWritable() || !(file.permissions() & anyoneWrites))
        throw StoreError(ReadOnly, u"The store %1 cannot be written to."_s.arg(path));
}

void CheckKind(SQLite::Database& database, const Schema& schema, const QString& path) {
    if (database.execAndGet("PRAGMA application_id").getInt() != ApplicationId(schema))
        throw StoreError(NotAStore, u"%1 is no store of this kind (%2)."_s.arg(path, schema.name));
    const int version = database.execAndGet("PRAGMA user_version").getInt();
    if (version > schema.version)
        throw StoreError(
            NotAStore,
            u"The store %1 is of version %2; this program knows versions up to %3."_s.arg(path).arg(version).arg(
                schema.version));
}

void CheckTables(SQLite::Database& database, const Schema& schema, const QString& path) {
    SQLite::Statement names(database, "SELECT name FROM pragma_table_info(?)");
    for (const Table& table : schema.tables) {
        QStringList present;
        names.bind(1, table.name.toStdString());
        while (names.executeStep()) present += QString::fromStdString(names.getColumn(0).getString());
        names.reset();
        for (const Column& column : table.columns)
            if (!present.contains(column.name))
                throw StoreError(NotAStore, u"The store %1 is damaged: it lacks the column %2 of %3."_s.arg(
                                                path, column.name, table.name));
    }
}

std::string JournalMode(Connection& connection, const char* sql) {
    return connection.Database().execAndGet(sql).getString();
}

void SetUp(Connection& connection, const QString& path) {
    if (sqlite3_db_readonly(connection.Handle(), "main") == 1)
        throw StoreError(ReadOnly, u"The store %1 cannot be written to."_s.arg(path));
    // Asking costs nothing; setting it would need the file for itself.
    if (JournalMode(connection, "PRAGMA journal_mode") != "wal") {
        if (JournalMode(connection, "PRAGMA journal_mode = WAL") != "wal")
            throw StoreError(DiskError, u"No write-ahead log can be kept beside %1."_s.arg(path));
    }
    connection.Run("PRAGMA synchronous = FULL");
    connection.UseMemory(UsualMemory);
}

// A store whose right to write is not to be had now is held by somebody for himself.
void CheckThatFree(Connection& connection) {
    connection.Run("BEGIN IMMEDIATE");
    connection.Run("ROLLBACK");
}

[[noreturn]] void ThrowOpeningError(int code, const QString& message, const QString& path) {
    switch (code & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            throw StoreError(HeldExclusively, u"The store %1 is held exclusively by another user."_s.arg(path));
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
            throw StoreError(NotAStore, u"%1 is damaged or no store (%2)."_s.arg(path, message));
        case SQLITE_CANTOPEN:
        case SQLITE_READONLY:
            throw StoreError(ReadOnly, u"The store %1 cannot be opened for writing (%2)."_s.arg(path, message));
        default:
            ThrowCode(code, message, u"opening %1"_s.arg(path));
    }
}

}  // namespace

std::unique_ptr<Engine> OpenFile(const QString& path, const Schema& schema) {
    CheckFile(path);
    std::shared_ptr<Connection> connection;
    try {
        connection = std::make_shared<Connection>(path, false, OpeningPatience);
        CheckKind(connection->Database(), schema, path);
        SetUp(*connection, path);
        CheckThatFree(*connection);
        MigrateSchema(connection->Database(), schema);
        CheckTables(connection->Database(), schema, path);
        connection->SetPatience(WorkingPatience);
        return std::make_unique<SqliteEngine>(std::move(connection), path);
    } catch (const SQLite::Exception& error) {
        const int code = connection ? CodeWithoutRoom(connection->Handle(), CodeOf(error)) : CodeOf(error);
        ThrowOpeningError(code, QString::fromUtf8(error.what()), path);
    } catch (const StoreError& error) {
        if (error.Number() != StoreLocked) throw;
        ThrowOpeningError(SQLITE_BUSY, error.Description(), path);
    }
}

std::unique_ptr<Engine> CreateFile(const QString& path, const Schema& schema) {
    NewFile file(path);
    try {
        Connection connection(file.Path(), true, OpeningPatience);
        SetUp(connection, path);
        BuildSchema(connection.Database(), schema);
    } catch (const SQLite::Exception& error) {
        ThrowCode(CodeOf(error), QString::fromUtf8(error.what()), u"making %1"_s.arg(path));
    }
    file.Finish();
    return OpenFile(path, schema);
}

}  // namespace store::sqlite
