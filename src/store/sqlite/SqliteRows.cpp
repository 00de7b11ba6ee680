#include <sqlite3.h>

#include "store/sqlite/QuerySql.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/sqlite/SqliteSchema.h"

namespace store::sqlite {

// What a plan needs over and over, prepared when it is first needed.
struct SqliteEngine::Prepared {
    explicit Prepared(std::shared_ptr<Connection> itsConnection) : connection(std::move(itsConnection)) {}

    Statement& Get(Statement& slot, const auto& sql) const {
        if (!slot) slot = Statement(connection->Handle(), sql());
        return slot;
    }

    std::shared_ptr<Connection> connection;
    Statement whole;  // the query as it stands, or the action
    Statement oneRow;
    Statement nextRows;
};

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

quint64 ColumnSet(std::span<const FieldChange> fields) {
    quint64 set = 0;
    for (const FieldChange& field : fields) set |= quint64{1} << field.column;
    return set;
}

}  // namespace

SqliteEngine::Prepared& SqliteEngine::PreparedFor(const dialect::Plan& plan,
                                                  const std::shared_ptr<Connection>& connection) {
    if (!plan.prepared) plan.prepared = std::make_shared<Prepared>(connection);
    return *static_cast<Prepared*>(plan.prepared.get());
}

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

void SqliteEngine::ReadAfter(const dialect::Query& query, qint64 after, qint64 upTo, int limit,
                             std::vector<qint64>& keys, RowBlock& rows) {
    const int literals = static_cast<int>(query.values.size());
    Prepared& prepared = PreparedFor(*query.plan, connection_);
    Statement& statement = prepared.Get(prepared.nextRows, [&] {
        return RowsSql(*query.plan, "rowid > " + Parameter(literals + 1) + " AND rowid <= " + Parameter(literals + 2) +
                                        " ORDER BY rowid LIMIT " + Parameter(literals + 3));
    });
    const StatementUse use(statement);
    statement.BindAll(query.values);
    statement.Bind(literals + 1, after);
    statement.Bind(literals + 2, upTo);
    statement.Bind(literals + 3, qint64{limit});
    rows.Clear(OutputColumns(query));
    while (statement.Step()) {
        keys.push_back(statement.Integer(0));
        statement.AppendRow(rows, 1);
    }
}

void SqliteEngine::ReadRows(const dialect::Query& query, std::span<const qint64> keys, RowBlock& rows) {
    const int literals = static_cast<int>(query.values.size());
    Prepared& prepared = PreparedFor(*query.plan, connection_);
    Statement& statement =
        prepared.Get(prepared.oneRow, [&] { return RowsSql(*query.plan, "rowid = " + Parameter(literals + 1)); });
    rows.Clear(OutputColumns(query));
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

qint64 SqliteEngine::Insert(const Table& table, std::span<const FieldChange> fields) {
    Statement& statement = StatementFor({Shape::Insert, &table, ColumnSet(fields)});
    const StatementUse use(statement);
    for (int i = 0; const FieldChange& field : fields) statement.Bind(++i, field.value);
    ++writes_;
    statement.Step();
    return sqlite3_last_insert_rowid(Handle());
}

bool SqliteEngine::Change(const Table& table, qint64 row, std::span<const FieldChange> fields,
                          std::span<const FieldChange> expected) {
    Statement& statement = StatementFor({Shape::Change, &table, ColumnSet(fields), ColumnSet(expected)});
    const StatementUse use(statement);
    int parameter = 0;
    for (const FieldChange& field : fields) statement.Bind(++parameter, field.value);
    statement.Bind(++parameter, row);
    for (const FieldChange& field : expected) statement.Bind(++parameter, field.value);
    ++writes_;
    statement.Step();
    return sqlite3_changes64(Handle()) > 0;
}

bool SqliteEngine::Remove(const Table& table, qint64 row) {
    Statement& statement = StatementFor({Shape::Remove, &table});
    const StatementUse use(statement);
    statement.Bind(1, row);
    ++writes_;
    statement.Step();
    return sqlite3_changes64(Handle()) > 0;
}

qint64 SqliteEngine::Execute(const dialect::Query& action) {
    Prepared& prepared = PreparedFor(*action.plan, connection_);
    Statement& statement = prepared.Get(prepared.whole, [&] { return ActionSql(*action.plan); });
    const StatementUse use(statement);
    statement.BindAll(action.values);
    ++writes_;
    statement.Step();
    return sqlite3_changes64(Handle());
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
