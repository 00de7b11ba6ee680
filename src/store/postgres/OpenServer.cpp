#include "store/postgres/OpenServer.h"

#include "store/SqlText.h"
#include "store/Words.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerSchema.h"

namespace store::postgres {

namespace {

constexpr int OpeningPatience = 1500;  // milliseconds

void CheckServer(Connection& connection) {
    static const std::string facts =
        "SELECT current_setting('server_version_num')::bigint, current_setting('server_encoding'), pg_is_in_recovery()";
    constexpr int oldest = 150'000;
    const Answer answer = connection.Read(facts);
    const QString where = connection.At().Shown();
    if (answer.Integer(0, 0) < oldest)
        throw StoreError(NotSupported, Words::tr("The server of %1 is older than version 15.").arg(where));
    if (answer.Text(0, 1) != u"UTF8")
        throw StoreError(NotSupported,
                         Words::tr("The database of %1 holds texts in %2, not in UTF8.").arg(where, answer.Text(0, 1)));
    if (answer.IsTrue(0, 2))
        throw StoreError(ReadOnly, Words::tr("The server of %1 is a standby and takes no changes.").arg(where));
}

bool HoldsStore(Connection& connection) {
    static const std::string sql =
        "SELECT to_regclass('velton_store') IS NOT NULL, EXISTS (SELECT 1 FROM pg_namespace WHERE nspname = $1 AND NOT "
        "has_schema_privilege(oid, 'USAGE'))";
    Arguments name;
    name.Add(connection.At().SchemaName().toUtf8());
    const Answer answer = connection.Read(sql, name);
    if (answer.IsTrue(0, 1))
        throw StoreError(
            ReadOnly,
            Words::tr("The role has no right to use the schema of the store %1.").arg(connection.At().Shown()));
    return answer.IsTrue(0, 0);
}

int CheckKind(Connection& connection, const Schema& schema) {
    static const std::string sql = "SELECT kind, version FROM velton_store";
    const QString where = connection.At().Shown();
    const Answer answer = connection.Read(sql);
    if (answer.Rows() != 1 || answer.Text(0, 0) != schema.name)
        throw StoreError(NotAStore, Words::tr("%1 is no store of this kind (%2).").arg(where, schema.name));
    const qint64 version = answer.Integer(0, 1);
    if (version > schema.version)
        throw StoreError(NotAStore, Words::tr("The store %1 is of version %2; this program knows versions up to %3.")
                                        .arg(where, QString::number(version), QString::number(schema.version)));
    return static_cast<int>(version);
}

// A shop may keep tables of its own beside these.
void CheckRights(Connection& connection, const Schema& schema) {
    static const std::string sql =
        "SELECT c.relname FROM pg_class c WHERE c.relnamespace = quote_ident(current_schema())::regnamespace AND "
        "(c.relname = ANY($1::text[]) AND NOT (has_table_privilege(c.oid, 'SELECT') AND "
        "has_table_privilege(c.oid, 'INSERT') AND has_table_privilege(c.oid, 'UPDATE') AND "
        "has_table_privilege(c.oid, 'DELETE')) OR c.relname = 'velton_burst' AND "
        "NOT has_sequence_privilege(c.oid, 'UPDATE'))";
    QByteArrayList names;
    for (const Table& table : schema.tables) names += table.name.toUtf8();
    Arguments tables;
    tables.Add('{' + names.join(',') + '}');
    const Answer answer = connection.Read(sql, tables);
    if (answer.Rows() > 0)
        throw StoreError(ReadOnly, Words::tr("The store %1 cannot be written to: the role has no right to %2.")
                                       .arg(connection.At().Shown(), answer.Text(0, 0)));
}

void CheckColumns(Connection& connection, const Schema& schema) {
    const QStringList missing = MissingColumns(connection, schema);
    if (!missing.isEmpty())
        throw StoreError(
            NotAStore,
            Words::tr("The store %1 is damaged: it lacks %2.").arg(connection.At().Shown(), missing.first()));
}

// Others may carry the store forward at the same time.
void Migrate(Connection& connection, const Schema& schema) {
    while (CheckKind(connection, schema) < schema.version) {
        connection.Begin();
        const int version = CheckKind(connection, schema);
        if (version < schema.version)
            for (const std::string& sql : MigrationSql(schema, version))
                connection.Write(Connection::Right::ToWriteMany, nullptr, sql, {});
        connection.Commit();
    }
}

// A store whose right to write is not to be had now is held by somebody for himself.
void CheckThatFree(Connection& connection) {
    try {
        connection.Begin();
        connection.Rollback();
    } catch (const StoreError& error) {
        if (error.Number() != StoreLocked) throw;
        throw StoreError(HeldExclusively,
                         Words::tr("The store %1 is held exclusively by another user.").arg(connection.At().Shown()));
    }
}

std::unique_ptr<Connection> Connected(const Place& place) {
    auto connection = std::make_unique<Connection>(place);
    connection->SetPatience(OpeningPatience);
    CheckServer(*connection);
    return connection;
}

}  // namespace

std::unique_ptr<Engine> OpenSchema(const Place& place, const Schema& schema) {
    auto connection = Connected(place);
    if (!HoldsStore(*connection))
        throw StoreError(FileNotFound, Words::tr("There is no store at %1.").arg(place.Shown()));
    CheckKind(*connection, schema);
    CheckRights(*connection, schema);
    CheckThatFree(*connection);
    Migrate(*connection, schema);
    CheckColumns(*connection, schema);
    connection->SetPatience(WorkingPatience);
    return std::make_unique<PostgresEngine>(std::move(connection), schema);
}

std::unique_ptr<Engine> CreateSchema(const Place& place, const Schema& schema) {
    auto connection = Connected(place);
    connection->Begin();
    if (HoldsStore(*connection))
        throw StoreError(FileExists, Words::tr("There is a store at %1 already.").arg(place.Shown()));
    for (const std::string& sql : SchemaSql(schema, place.SchemaName()))
        connection->Write(Connection::Right::ToWriteMany, nullptr, sql, {});
    connection->SetPatience(WorkingPatience);
    return std::make_unique<PostgresEngine>(std::move(connection), schema);
}

}  // namespace store::postgres
