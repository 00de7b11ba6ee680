#include <sqlite3.h>

#include "store/sqlite/PreparedPlan.h"
#include "store/sqlite/QuerySql.h"

namespace store::sqlite {

namespace {

// Several reads of one moment.
class ReadTransaction {
public:
    ReadTransaction(Connection& connection, bool wanted)
        : connection_(connection), open_(wanted && sqlite3_get_autocommit(connection.Handle()) != 0) {
        if (open_) connection_.Run("BEGIN");
    }
    ~ReadTransaction() {
        if (open_) sqlite3_exec(connection_.Handle(), "COMMIT", nullptr, nullptr, nullptr);
    }
    ReadTransaction(const ReadTransaction&) = delete;
    ReadTransaction& operator=(const ReadTransaction&) = delete;

private:
    Connection& connection_;
    bool open_;
};

int OutputColumns(const dialect::Query& query) {
    return static_cast<int>(query.plan->output.size());
}

bool LieCloseTogether(std::span<const qint64> keys) {
    constexpr qint64 rowsPerKey = 2;
    return keys.size() > 1 && keys.back() - keys.front() < static_cast<qint64>(keys.size()) * rowsPerKey &&
           std::ranges::is_sorted(keys);
}

}  // namespace

void SqliteEngine::ReadAll(const dialect::Query& query, RowBlock& rows) {
    Prepared& prepared = PreparedFor(*query.plan, connection_);
    Statement& statement = prepared.Get(prepared.whole, [&] { return SelectSql(*query.plan, false); });
    const StatementUse use(statement);
    statement.BindAll(query.values);
    rows.Clear(OutputColumns(query));
    while (statement.Step()) statement.AppendRow(rows, 0);
}

void SqliteEngine::ReadKeyset(const dialect::Query& query, int withData, std::vector<qint64>& keys, RowBlock& rows) {
    Prepared& prepared = PreparedFor(*query.plan, connection_);
    Statement& statement = prepared.Get(prepared.whole, [&] { return SelectSql(*query.plan, true); });
    const StatementUse use(statement);
    statement.BindAll(query.values);
    rows.Clear(OutputColumns(query));
    for (int i = 0; statement.Step(); ++i) {
        keys.push_back(statement.Integer(0));
        if (i < withData) statement.AppendRow(rows, 1);
    }
}

// The rows behind one, by identity; whoever reads them stops where he wants.
Statement& SqliteEngine::RowsAfter(const dialect::Query& query, qint64 after) {
    const int literals = static_cast<int>(query.values.size());
    Prepared& prepared = PreparedFor(*query.plan, connection_);
    Statement& statement = prepared.Get(
        prepared.after, [&] { return RowsSql(*query.plan, "rowid > " + Parameter(literals + 1) + " ORDER BY rowid"); });
    statement.BindAll(query.values);
    statement.Bind(literals + 1, after);
    return statement;
}

void SqliteEngine::ReadAfter(const dialect::Query& query, qint64 after, qint64 upTo, int limit,
                             std::vector<qint64>& keys, RowBlock& rows) {
    Statement& statement = RowsAfter(query, after);
    const StatementUse use(statement);
    rows.Clear(OutputColumns(query));
    for (int i = 0; i < limit && statement.Step(); ++i) {
        const qint64 row = statement.Integer(0);
        if (row > upTo) return;
        keys.push_back(row);
        statement.AppendRow(rows, 1);
    }
}

void SqliteEngine::ReadRows(const dialect::Query& query, std::span<const qint64> keys, RowBlock& rows) {
    rows.Clear(OutputColumns(query));
    if (LieCloseTogether(keys))
        ReadRange(query, keys, rows);
    else
        ReadEach(query, keys, rows);
}

// One walk over a stretch of the table, which passes over the rows that are not asked for.
void SqliteEngine::ReadRange(const dialect::Query& query, std::span<const qint64> keys, RowBlock& rows) {
    Statement& statement = RowsAfter(query, keys.front() - 1);
    const StatementUse use(statement);
    auto key = keys.begin();
    while (key != keys.end() && statement.Step()) {
        const qint64 row = statement.Integer(0);
        for (; key != keys.end() && *key < row; ++key) rows.AddGone();
        if (key == keys.end() || *key != row) continue;
        statement.AppendRow(rows, 1);
        ++key;
    }
    for (; key != keys.end(); ++key) rows.AddGone();
}

void SqliteEngine::ReadEach(const dialect::Query& query, std::span<const qint64> keys, RowBlock& rows) {
    const int literals = static_cast<int>(query.values.size());
    Prepared& prepared = PreparedFor(*query.plan, connection_);
    Statement& statement =
        prepared.Get(prepared.oneRow, [&] { return RowsSql(*query.plan, "rowid = " + Parameter(literals + 1)); });
    const ReadTransaction transaction(*connection_, keys.size() > 1);
    statement.BindAll(query.values);
    for (const qint64 key : keys) {
        const StatementUse use(statement);
        statement.Bind(literals + 1, key);
        if (statement.Step())
            statement.AppendRow(rows, 1);
        else
            rows.AddGone();
    }
}

void SqliteEngine::ReadKeys(const Table& table, qint64 after, qint64 upTo, std::vector<qint64>& keys) {
    Statement& statement = StatementFor({Shape::Keys, &table});
    const StatementUse use(statement);
    statement.Bind(1, after);
    statement.Bind(2, upTo);
    while (statement.Step()) keys.push_back(statement.Integer(0));
}

std::vector<qint64> SqliteEngine::FindRows(const Table& table, const dialect::Query& criteria) {
    Prepared& prepared = PreparedFor(*criteria.plan, connection_);
    Statement& statement = prepared.Get(prepared.whole, [&] { return FindSql(table, *criteria.plan); });
    const StatementUse use(statement);
    statement.BindAll(criteria.values);
    std::vector<qint64> rows;
    while (statement.Step()) rows.push_back(statement.Integer(0));
    return rows;
}

qint64 SqliteEngine::LastRow(const Table& table) {
    Statement& statement = StatementFor({Shape::LastRow, &table});
    const StatementUse use(statement);
    return statement.Step() ? statement.Integer(0) : 0;
}

}  // namespace store::sqlite
