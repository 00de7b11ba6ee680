#include "store/sqlite/OpenSqlite.h"

#include <sqlite3.h>

#include <QFileInfo>

#include "store/Words.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/sqlite/SqliteError.h"
#include "store/sqlite/SqliteSchema.h"

using namespace std::chrono_literals;

namespace store::sqlite {

namespace {

constexpr Connection::Patience OpeningPatience = 1500ms;
constexpr Connection::Patience WorkingPatience = 4000ms;

// Looks from outside only: opening and closing the file by hand would drop the locks that another connection of this
// process holds on it.
void CheckFile(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile()) throw StoreError(FileNotFound, Words::tr("The store %1 was not found.").arg(path));
    if (file.size() == 0) throw StoreError(NotAStore, Words::tr("%1 is empty and no store.").arg(path));
    constexpr auto anyoneWrites = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (!file.isWritable() || !(file.permissions() & anyoneWrites))
        throw StoreError(ReadOnly, Words::tr("The store %1 cannot be written to.").arg(path));
}

void CheckKind(Connection& connection, const Schema& schema, const QString& path) {
    if (connection.Integer("PRAGMA application_id") != ApplicationId(schema))
        throw StoreError(NotAStore, Words::tr("%1 is no store of this kind (%2).").arg(path, schema.name));
    const qint64 version = connection.Integer("PRAGMA user_version");
    if (version > schema.version)
        throw StoreError(NotAStore, Words::tr("The store %1 is of version %2; this program knows versions up to %3.")
                                        .arg(path, QString::number(version), QString::number(schema.version)));
}

void CheckTables(Connection& connection, const Schema& schema, const QString& path) {
    Statement names(connection.Handle(), "SELECT name FROM pragma_table_info(?)");
    for (const Table& table : schema.tables) {
        const StatementUse use(names);
        const dialect::BoundValue name = table.name.toUtf8();
        QStringList present;
        names.Bind(1, name);
        while (names.Step()) present += names.Text(0);
        for (const Column& column : table.columns)
            if (!present.contains(column.name))
                throw StoreError(NotAStore, Words::tr("The store %1 is damaged: it lacks the column %2 of %3.")
                                                .arg(path, column.name, table.name));
    }
}

void SetUp(Connection& connection, const QString& path) {
    if (sqlite3_db_readonly(connection.Handle(), "main") == 1)
        throw StoreError(ReadOnly, Words::tr("The store %1 cannot be written to.").arg(path));
    // Asking costs nothing; setting it would need the file for itself.
    if (connection.Text("PRAGMA journal_mode") != u"wal") {
        if (connection.Text("PRAGMA journal_mode = WAL") != u"wal")
            throw StoreError(DiskError, Words::tr("No write-ahead log can be kept beside %1.").arg(path));
    }
    connection.Run("PRAGMA synchronous = FULL");
    connection.UseMemory(UsualMemory);
}

// A store whose right to write is not to be had now is held by somebody for himself.
void CheckThatFree(Connection& connection) {
    connection.Run("BEGIN IMMEDIATE");
    connection.Run("ROLLBACK");
}

[[noreturn]] void ThrowOpeningError(const SqliteError& error, const QString& path) {
    switch (error.Code() & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            throw StoreError(HeldExclusively, Words::tr("The store %1 is held exclusively by another user.").arg(path));
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
            throw StoreError(NotAStore, Words::tr("%1 is damaged or no store (%2).").arg(path, error.Message()));
        case SQLITE_CANTOPEN:
        case SQLITE_READONLY:
            throw StoreError(ReadOnly,
                             Words::tr("The store %1 cannot be opened for writing (%2).").arg(path, error.Message()));
        default:
            ThrowCode(error.Code(), error.Message(), Words::tr("opening %1").arg(path));
    }
}

}  // namespace

std::unique_ptr<Engine> OpenFile(const QString& path, const Schema& schema) {
    CheckFile(path);
    try {
        auto connection = std::make_shared<Connection>(path, false, OpeningPatience);
        CheckKind(*connection, schema, path);
        SetUp(*connection, path);
        CheckThatFree(*connection);
        MigrateSchema(*connection, schema);
        CheckTables(*connection, schema, path);
        connection->SetPatience(WorkingPatience);
        return std::make_unique<SqliteEngine>(std::move(connection), path);
    } catch (const SqliteError& error) {
        ThrowOpeningError(error, path);
    }
}

void BuildFile(const QString& file, const QString& path, const Schema& schema) {
    try {
        Connection connection(file, true, OpeningPatience);
        SetUp(connection, path);
        BuildSchema(connection, schema);
    } catch (const SqliteError& error) {
        ThrowCode(error.Code(), error.Message(), Words::tr("making %1").arg(path));
    }
}

}  // namespace store::sqlite
