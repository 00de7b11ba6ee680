#include "store/sqlite/SqliteSchema.h"

#include "store/Conversion.h"
#include "store/Migrations.h"
#include "store/SqlText.h"
#include "store/sqlite/Connection.h"
#include "store/sqlite/Statement.h"

using namespace Qt::StringLiterals;

namespace store::sqlite {

namespace {

std::string TypeSql(Type type) {
    if (type == Type::Text) return "TEXT COLLATE VELTON";
    if (type == Type::Double) return "REAL";
    return "INTEGER";
}

// Defaults are numbers and flags; a text default would need quoting.
std::string DefaultSql(const Column& column) {
    const dialect::BoundValue value = ToStored(column.byDefault, column.type);
    const auto* number = std::get_if<qint64>(&value);
    return number == nullptr ? std::string() : " DEFAULT " + std::to_string(*number);
}

std::string ColumnSql(const Column& column) {
    return Quoted(column.name) + " " +
           (column.selfNumbering ? "INTEGER PRIMARY KEY AUTOINCREMENT" : TypeSql(column.type) + DefaultSql(column));
}

std::string Sql(const AddedColumn& added) {
    return "ALTER TABLE " + Quoted(added.table) + " ADD COLUMN " + ColumnSql(added.column);
}

std::string Sql(const AddedIndex& added) {
    return IndexSql(added.table, added.index);
}

void Run(Connection& connection, const std::string& sql) {
    connection.Run(sql.c_str());
}

void SetVersion(Connection& connection, qint64 version) {
    Run(connection, "PRAGMA user_version = " + std::to_string(version));
}

qint64 VersionOf(Connection& connection) {
    return connection.Integer("PRAGMA user_version");
}

}  // namespace

// Row identities must never come back, since cursors remember them; hence AUTOINCREMENT.
std::string TableSql(const Table& table) {
    const bool numbersItself = std::ranges::any_of(table.columns, &Column::selfNumbering);
    std::string columns = numbersItself ? "" : "\"RowKey\" INTEGER PRIMARY KEY AUTOINCREMENT";
    for (const Column& column : table.columns) {
        if (!columns.empty()) columns += ", ";
        columns += ColumnSql(column);
    }
    return "CREATE TABLE " + Quoted(table.name) + " (" + columns + ") STRICT";
}

std::string IndexSql(const QString& table, const Index& index) {
    std::string terms;
    for (const QString& column : index.columns) {
        if (!terms.empty()) terms += ", ";
        terms += index.overVal ? "velton_val(" + Quoted(column) + ")" : Quoted(column);
    }
    return std::string("CREATE ") + (index.unique ? "UNIQUE " : "") + "INDEX " + Quoted(IndexName(table, index)) +
           " ON " + Quoted(table) + " (" + terms + ")";
}

// "VEL", and the kind.
qint32 ApplicationId(const Schema& schema) {
    constexpr qint32 ofAnyKind = 0x5645'4C00;
    if (schema.name == MainSchema().name) return ofAnyKind + 1;
    return schema.name == OptionsSchema().name ? ofAnyKind + 2 : ofAnyKind;
}

void BuildSchema(Connection& connection, const Schema& schema) {
    Connection::Transaction transaction(connection);
    for (const Table& table : schema.tables) {
        Run(connection, TableSql(table));
        for (const Index& index : table.indexes) Run(connection, IndexSql(table.name, index));
    }
    Run(connection, "PRAGMA application_id = " + std::to_string(ApplicationId(schema)));
    SetVersion(connection, schema.version);
    transaction.Commit();
}

QStringList MissingIndexes(Connection& connection, const Schema& schema) {
    QStringList present, missing;
    Statement names(connection.Handle(), "SELECT name FROM sqlite_schema WHERE type = 'index'");
    while (names.Step()) present += names.Text(0);
    for (const Table& table : schema.tables)
        for (const Index& index : table.indexes)
            if (!present.contains(IndexName(table.name, index)))
                missing += table.name + u'.' + index.columns.join(u'+');
    return missing;
}

void MigrateSchema(Connection& connection, const Schema& schema) {
    while (VersionOf(connection) < schema.version) {
        Connection::Transaction transaction(connection);
        const qint64 version = VersionOf(connection);
        if (version < schema.version) {
            for (const auto& change : MigrationFrom(schema, static_cast<int>(version)))
                Run(connection, std::visit([](const auto& one) { return Sql(one); }, change));
            SetVersion(connection, version + 1);
        }
        transaction.Commit();
    }
}

}  // namespace store::sqlite
