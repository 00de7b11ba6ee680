#include <sqlite3.h>

#include "store/SqlText.h"
#include "store/sqlite/PreparedPlan.h"

namespace store::sqlite {

namespace {

ColumnSet ColumnsOf(std::span<const FieldChange> fields) {
    ColumnSet columns(fields.size());
    std::ranges::transform(fields, columns.begin(), &FieldChange::column);
    return columns;
}

}  // namespace

qint64 SqliteEngine::Insert(const Table& table, std::span<const FieldChange> fields) {
    Statement& statement = StatementFor({Shape::Insert, &table, ColumnsOf(fields)});
    const StatementUse use(statement);
    for (int i = 0; const FieldChange& field : fields) statement.Bind(++i, field.value);
    Write(statement);
    return sqlite3_last_insert_rowid(Handle());
}

bool SqliteEngine::Change(const Table& table, qint64 row, std::span<const FieldChange> fields,
                          std::span<const FieldChange> expected) {
    Statement& statement = StatementFor({Shape::Change, &table, ColumnsOf(fields), ColumnsOf(expected)});
    const StatementUse use(statement);
    int parameter = 0;
    for (const FieldChange& field : fields) statement.Bind(++parameter, field.value);
    statement.Bind(++parameter, row);
    for (const FieldChange& field : expected) statement.Bind(++parameter, field.value);
    Write(statement);
    return sqlite3_changes64(Handle()) > 0;
}

bool SqliteEngine::Remove(const Table& table, qint64 row) {
    Statement& statement = StatementFor({Shape::Remove, &table});
    const StatementUse use(statement);
    statement.Bind(1, row);
    Write(statement);
    return sqlite3_changes64(Handle()) > 0;
}

qint64 SqliteEngine::Execute(const dialect::Query& action) {
    Prepared& prepared = PreparedOf(action);
    Statement& statement = prepared.Get(prepared.whole, [&] { return ActionSql(action.plan->kind, prepared.sql); });
    const StatementUse use(statement);
    statement.BindAll(action.values);
    Write(statement);
    return sqlite3_changes64(Handle());
}

// The files are looked at on both sides of a commit, so that nothing is acknowledged which went into lost ones. Inside
// a batch its own commit decides. A burst is acknowledged when it ends, and its commits come close behind each other:
// there the look at the log behind one of them serves the next.
void SqliteEngine::Write(Statement& statement) {
    const bool commits = !InTransaction();
    const bool isInsideBurst = isRelaxed_ && writes_ != writesWhenRelaxed_;
    if (commits && (isLost_ || !isInsideBurst)) RequireOwnFiles();
    ++writes_;
    try {
        const Connection::Waits waits(*connection_);
        statement.Step();
    } catch (const StoreError&) {
        if (commits) RequireOwnFiles();
        throw;
    }
    if (commits) isRelaxed_ ? RequireOwnLog() : RequireOwnFiles();
}

Statement& SqliteEngine::StatementFor(const ShapeKey& key) {
    Statement& statement = statements_[key];
    if (!statement) statement = Statement(Handle(), SqlOf(key));
    return statement;
}

std::string SqliteEngine::SqlOf(const ShapeKey& key) {
    const std::string table = Quoted(key.table->name);
    switch (key.shape) {
        case Shape::LastRow:
            return "SELECT max(rowid) FROM " + table;
        case Shape::Keys:
            return "SELECT rowid FROM " + table + " WHERE rowid > ?1 AND rowid <= ?2 ORDER BY rowid";
        case Shape::Extent:
            return "SELECT (SELECT min(rowid) FROM " + table + "), (SELECT max(rowid) FROM " + table +
                   "), (SELECT count(*) FROM " + table + ")";
        case Shape::Insert:
            return InsertSql(*key.table, key.columns);
        case Shape::Change:
            return ChangeSql(*key.table, key.columns, key.expected);
        case Shape::Remove:
            return "DELETE FROM " + table + " WHERE rowid = ?1";
    }
    return {};
}

}  // namespace store::sqlite
