#include "store/sqlite/SqliteSchema.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "store/Conversion.h"
#include "store/Migrations.h"
#include "store/sqlite/SqlText.h"

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

void SetVersion(SQLite::Database& database, int version) {
    database.exec("PRAGMA user_version = " + std::to_string(version));
}

int VersionOf(SQLite::Database& database) {
    return database.execAndGet("PRAGMA user_version").getInt();
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

QString IndexName(const QString& table, const Index& index) {
    const QString kind = index.unique ? u"Key"_s : index.overVal ? u"Val"_s : u"By"_s;
    return table + kind + index.columns.join(QString());
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

void BuildSchema(SQLite::Database& database, const Schema& schema) {
    SQLite::Transaction transaction(database);
    for (const Table& table : schema.tables) {
        database.exec(TableSql(table));
        for (const Index& index : table.indexes) database.exec(IndexSql(table.name, index));
    }
    database.exec("PRAGMA application_id = " + std::to_string(ApplicationId(schema)));
    SetVersion(database, schema.version);
    transaction.commit();
}

QStringList MissingIndexes(SQLite::Database& database, const Schema& schema) {
    QStringList present, missing;
    SQLite::Statement names(database, "SELECT name FROM sqlite_schema WHERE type = 'index'");
    while (names.executeStep()) present += QString::fromStdString(names.getColumn(0).getString());
    for (const Table& table : schema.tables)
        for (const Index& index : table.indexes)
            if (!present.contains(IndexName(table.name, index))) missing += table.name + u'.' + index.columns.join(u'+');
    return missing;
}

void MigrateSchema(SQLite::Database& database, const Schema& schema) {
    while (VersionOf(database) < schema.version) {
        SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
        const int version = VersionOf(database);
        if (version < schema.version) {
            for (const auto& change : MigrationFrom(schema, version))
                database.exec(std::visit([](const auto& one) { return Sql(one); }, change));
            SetVersion(database, version + 1);
        }
        transaction.commit();
    }
}

}  // namespace store::sqlite
