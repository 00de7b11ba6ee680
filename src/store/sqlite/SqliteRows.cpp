#include <sqlite3.h>

#include "store/sqlite/Parameter.h"
#include "store/sqlite/PreparedPlan.h"

using namespace Qt::StringLiterals;

namespace store::sqlite {

namespace {

int OutputColumns(const dialect::Query& query) {
    return static_cast<int>(query.plan->output.size());
}

bool LieCloseTogether(std::span<const qint64> keys) {
    constexpr qint64 rowsPerKey = 2;
    return keys.size() > 1 && keys.back() - keys.front() < static_cast<qint64>(keys.size()) * rowsPerKey &&
           std::ranges::is_sorted(keys);
}

}  // namespace

void SqliteEngine::Prepare(const dialect::Plan& plan, const QString& text) {
    plan.prepared = std::make_shared<Prepared>(connection_, Emit(plan, text));
}

SqliteEngine::Prepared& SqliteEngine::PreparedOf(const dialect::Query& query) {
    return *static_cast<Prepared*>(query.plan->prepared.get());
}

void SqliteEngine::ReadAll(const dialect::Query& query, RowBlock& rows) {
    // The rows of one table come with their identities, as a keyset would ask for them by the same statement.
    const bool withRow = query.plan->table != nullptr;
    Prepared& prepared = PreparedOf(query);
    Statement& statement = prepared.Get(prepared.whole, [&] { return SelectSql(prepared.sql, withRow); });
    const StatementUse use(statement);
    statement.BindAll(query.values);
    rows.Clear(OutputColumns(query));
    while (statement.Step()) statement.AppendRow(rows, withRow ? 1 : 0);
}

// Of what is kept with the plan only the SQL, since its statements belong to another connection when a thread reads.
void SqliteEngine::ReadInBlocks(const dialect::Query& query, int rowsEach,
                                const std::function<void(RowBlock&&)>& take) {
    const Connection::Moment moment(*connection_);
    connection_->Run("SELECT 1 FROM sqlite_schema LIMIT 1");
    take({});
    Statement statement(Handle(), SelectSql(PreparedOf(query).sql, false));
    statement.BindAll(query.values);
    bool isLast = false;
    while (!isLast) {
        RowBlock rows;
        rows.Clear(OutputColumns(query));
        rows.Reserve(rowsEach);
        while (!isLast && rows.Rows() < rowsEach) {
            isLast = !statement.Step();
            if (!isLast) statement.AppendRow(rows, 0);
        }
        take(std::move(rows));
    }
}

void SqliteEngine::ReadKeyset(const dialect::Query& query, int withData, std::vector<qint64>& keys, RowBlock& rows) {
    Prepared& prepared = PreparedOf(query);
    Statement& statement = prepared.Get(prepared.whole, [&] { return SelectSql(prepared.sql, true); });
    const StatementUse use(statement);
    statement.BindAll(query.values);
    rows.Clear(OutputColumns(query));
    while (statement.Step()) {
        keys.push_back(statement.Integer(0));
        if (rows.Rows() < withData)
            statement.AppendRow(rows, 1);
        else if (static_cast<int>(keys.size()) == withData + 1 && ScansWholeTable(query))
            return ReadKeysAfter(query, keys.back(), keys);
    }
}

bool SqliteEngine::ScansWholeTable(const dialect::Query& query) {
    return query.plan->order.empty() && Explain(query) == u"SCAN "_s + query.plan->table->name;
}

// The engine would take all columns of a row out of it for its identity alone. Whoever calls is in the middle of a
// statement, so that both see the store at one moment.
void SqliteEngine::ReadKeysAfter(const dialect::Query& query, qint64 after, std::vector<qint64>& keys) {
    const int literals = static_cast<int>(query.values.size());
    Prepared& prepared = PreparedOf(query);
    Statement& statement =
        prepared.Get(prepared.keysAfter, [&] { return KeysSql(prepared.sql, "rowid > " + Parameter(literals + 1)); });
    const StatementUse use(statement);
    statement.BindAll(query.values);
    statement.Bind(literals + 1, after);
    while (statement.Step()) keys.push_back(statement.Integer(0));
}

// The rows behind one, by identity; whoever reads them stops where he wants.
Statement& SqliteEngine::RowsAfter(const dialect::Query& query, qint64 after) {
    const int literals = static_cast<int>(query.values.size());
    Prepared& prepared = PreparedOf(query);
    Statement& statement = prepared.Get(prepared.after, [&] {
        return RowsSql(prepared.sql, "rowid > " + Parameter(literals + 1) + " ORDER BY rowid");
    });
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
    Prepared& prepared = PreparedOf(query);
    Statement& statement =
        prepared.Get(prepared.oneRow, [&] { return RowsSql(prepared.sql, "rowid = " + Parameter(literals + 1)); });
    std::optional<Connection::Moment> transaction;
    if (keys.size() > 1) transaction.emplace(*connection_);
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
    constexpr qint64 worthCounting = 10'000;
    if (upTo - after >= worthCounting && AppendIfWithoutGap(table, after, upTo, keys)) return;
    Statement& statement = StatementFor({Shape::Keys, &table});
    const StatementUse use(statement);
    statement.Bind(1, after);
    statement.Bind(2, upTo);
    while (statement.Step()) keys.push_back(statement.Integer(0));
}

// Rows are counted far faster than read; where none was ever deleted, the count tells all identities.
bool SqliteEngine::AppendIfWithoutGap(const Table& table, qint64 after, qint64 upTo, std::vector<qint64>& keys) {
    Statement& extent = StatementFor({Shape::Extent, &table});
    const StatementUse use(extent);
    extent.Step();
    const qint64 first = extent.Integer(0), last = extent.Integer(1), count = extent.Integer(2);
    if (count != last - first + 1) return false;
    for (qint64 row = std::max(after + 1, first); row <= std::min(upTo, last); ++row) keys.push_back(row);
    return true;
}

std::vector<qint64> SqliteEngine::FindRows(const dialect::Query& criteria) {
    Prepared& prepared = PreparedOf(criteria);
    Statement& statement = prepared.Get(prepared.whole, [&] { return FindSql(prepared.sql); });
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
