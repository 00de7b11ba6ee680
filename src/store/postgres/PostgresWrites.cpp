#include "store/SqlText.h"
#include "store/postgres/PostgresEngine.h"

namespace store::postgres {

namespace {

using Right = Connection::Right;

std::vector<int> ColumnsOf(std::span<const FieldChange> fields) {
    std::vector<int> columns(fields.size());
    std::ranges::transform(fields, columns.begin(), &FieldChange::column);
    return columns;
}

std::string Parameter(int number, const Column& column) {
    return '$' + std::to_string(number) + "::" + TypeSql(column.type);
}

// A number that was given by hand counts as used.
std::string InsertSql(const Table& table, std::span<const FieldChange> fields) {
    const std::string key = Quoted(KeyColumn(table));
    std::string names, values, numbered;
    for (int parameter = 0; const FieldChange& field : fields) {
        const Column& column = table.columns[field.column];
        AppendTo(names, Quoted(column.name));
        AppendTo(values, Parameter(++parameter, column));
        if (!column.selfNumbering) continue;
        const std::string sequence = SequenceSql(table);
        numbered = " FROM (SELECT setval(" + sequence + ", greatest(" + Parameter(parameter, column) +
                   ", COALESCE(pg_sequence_last_value(" + sequence + "), 1)))) AS numbered";
    }
    const std::string row = fields.empty() ? " DEFAULT VALUES" : " (" + names + ") SELECT " + values + numbered;
    return "INSERT INTO " + Quoted(table.name) + row + " RETURNING " + key;
}

std::string ChangeSql(const Table& table, std::span<const FieldChange> fields, std::span<const FieldChange> expected) {
    std::string set;
    int parameter = 0;
    for (const FieldChange& field : fields) {
        const Column& column = table.columns[field.column];
        AppendTo(set, Quoted(column.name) + " = " + Parameter(++parameter, column));
    }
    std::string sql = "UPDATE " + Quoted(table.name) + " SET " + set + " WHERE " + Quoted(KeyColumn(table)) + " = $" +
                      std::to_string(++parameter) + "::bigint";
    for (const FieldChange& field : expected) {
        const Column& column = table.columns[field.column];
        sql += " AND " + Quoted(column.name) + " IS NOT DISTINCT FROM " + Parameter(++parameter, column);
    }
    return sql;
}

}  // namespace

// A null where a column numbers itself asks for the next number.
qint64 PostgresEngine::Insert(const Table& table, std::span<const FieldChange> fields) {
    std::vector<FieldChange> given;
    std::ranges::copy_if(fields, std::back_inserter(given), [&table](const FieldChange& field) {
        return !table.columns[field.column].selfNumbering || !std::holds_alternative<std::monostate>(field.value);
    });
    Arguments arguments;
    for (const FieldChange& field : given) arguments.Add(field.value);
    std::string& sql = writes_[{WriteShape::Kind::Insert, &table, ColumnsOf(given)}];
    if (sql.empty()) sql = InsertSql(table, given);
    return connection_->Write(Right::ToAdd, &table, sql, arguments).Integer(0, 0);
}

bool PostgresEngine::Change(const Table& table, qint64 row, std::span<const FieldChange> fields,
                            std::span<const FieldChange> expected) {
    Arguments arguments;
    for (const FieldChange& field : fields) arguments.Add(field.value);
    arguments.Add(row);
    for (const FieldChange& field : expected) arguments.Add(field.value);
    std::string& sql = writes_[{WriteShape::Kind::Change, &table, ColumnsOf(fields), ColumnsOf(expected)}];
    if (sql.empty()) sql = ChangeSql(table, fields, expected);
    return connection_->Write(Right::ToWriteOne, nullptr, sql, arguments).Affected() > 0;
}

bool PostgresEngine::Remove(const Table& table, qint64 row) {
    const std::string sql =
        "DELETE FROM " + Quoted(table.name) + " WHERE " + Quoted(KeyColumn(table)) + " = $1::bigint";
    return connection_->Write(Right::ToWriteOne, nullptr, sql, Arguments(row)).Affected() > 0;
}

// Of tables that were filled at once the server would know for a minute only that they were empty, and read them whole.
void PostgresEngine::Commit() {
    for (const Table* table : std::exchange(filled_, {}))
        connection_->Write(Right::ToWriteMany, table, "ANALYZE " + Quoted(table->name), {});
    connection_->Commit();
}

void PostgresEngine::Rollback() noexcept {
    filled_.clear();
    connection_->Rollback();
}

qint64 PostgresEngine::Execute(const dialect::Query& action) {
    const ServerQuery& prepared = PreparedOf(action);
    return connection_->Write(Right::ToWriteMany, nullptr, prepared.whole, Bound(action, prepared.slots.size()))
        .Affected();
}

}  // namespace store::postgres
