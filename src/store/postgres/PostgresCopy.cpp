#include "store/SqlText.h"
#include "store/Words.h"
#include "store/postgres/PostgresEngine.h"
#include "values/Clock.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

namespace {

constexpr int RowsEach = 512;

// The rows of a block come as an array a column: the server sets up a statement anew each time that it runs, which
// takes it longer than a row does.
std::string AddSql(const Table& table) {
    std::string names = Quoted(KeyColumn(table)), arrays = "$1::bigint[]";
    for (int parameter = 1; const Column& column : table.columns) {
        if (column.selfNumbering) continue;
        AppendTo(names, Quoted(column.name));
        AppendTo(arrays, '$' + std::to_string(++parameter) + "::" + TypeSql(column.type) + "[]");
    }
    return "INSERT INTO " + Quoted(table.name) + " (" + names + ") SELECT * FROM unnest(" + arrays + ")";
}

// For the schema that goes, beside those that went in the same second.
QString FreeName(Connection& connection) {
    constexpr qsizetype longestName = 63;  // bytes
    for (QDateTime time = values::Now();; time = time.addSecs(1)) {
        QString name = connection.At().SchemaName();
        const QString ending = time.toString(u"'_moved_'yyyyMMdd_HHmmss"_s);
        while (name.toUtf8().size() + ending.size() > longestName) name.chop(1);
        name += ending;
        Arguments wanted;
        wanted.Add(name.toUtf8());
        if (!connection.Read("SELECT EXISTS (SELECT 1 FROM pg_namespace WHERE nspname = $1)", wanted).IsTrue(0, 0))
            return name;
    }
}

}  // namespace

void PostgresEngine::ReadStore(const Schema& schema, const std::function<void(const Table&, const StoredRows&)>& take) {
    connection_->ReadTogether([&] {
        for (const Table& table : schema.tables) {
            const std::string key = Quoted(KeyColumn(table));
            std::string columns = key;
            for (const Column& column : table.columns) AppendTo(columns, Quoted(column.name));
            StoredRows block;
            const auto begin = [&] {
                block.keys.clear();
                block.rows.Clear(static_cast<int>(table.columns.size()));
            };
            begin();
            block.lastKey =
                connection_->Read("SELECT pg_sequence_last_value(" + SequenceSql(table) + ")").Integer(0, 0);
            connection_->Read("SELECT " + columns + " FROM " + Quoted(table.name) + " ORDER BY " + key, {},
                              [&](const Answer& row) {
                                  block.keys.push_back(row.Integer(0, 0));
                                  row.AppendRow(block.rows, 0, 1);
                                  if (block.rows.Rows() < RowsEach) return;
                                  take(table, block);
                                  begin();
                              });
            take(table, block);
        }
    });
}

void PostgresEngine::AddRows(const Table& table, const StoredRows& rows) {
    const std::string sql = AddSql(table);
    const std::string sequence = "SELECT setval(" + SequenceSql(table) + ", $1::bigint)";
    Arguments arrays;
    arrays.Add(rows.keys);
    std::vector<dialect::BoundValue> values(rows.keys.size());
    for (int column = 0; column < table.columns.size(); ++column) {
        if (table.columns[column].selfNumbering) continue;
        for (int row = 0; row < rows.rows.Rows(); ++row)
            values[static_cast<size_t>(row)] = rows.rows.ValueAt(row, column);
        try {
            arrays.Add(values);
        } catch (const StoreError& error) {
            throw StoreError(error.Number(), Words::tr("%1.%2, rows from %3 on: %4")
                                                 .arg(table.name, table.columns[column].name,
                                                      QString::number(rows.keys.front()), error.Description()));
        }
    }
    const Arguments last(rows.lastKey);
    std::vector<Command> commands;
    if (!rows.keys.empty()) commands.emplace_back(sql, arrays);
    if (rows.lastKey > 0) commands.emplace_back(sequence, last);
    if (commands.empty()) return;
    if (filled_.empty() || filled_.back() != &table) filled_.push_back(&table);
    try {
        connection_->WriteAll(commands);
    } catch (const ServerLost&) {
        throw;
    } catch (const StoreError& error) {
        throw StoreError(
            error.Number(),
            Words::tr("%1, rows from %2 on: %3")
                .arg(table.name, QString::number(rows.keys.empty() ? 0 : rows.keys.front()), error.Description()));
    }
}

// The right to write many keeps others from opening the store, too.
void PostgresEngine::TakeAlone() {
    Begin();
}

QString PostgresEngine::PrepareToRetire() {
    const QString name = FreeName(*connection_);
    connection_->Write(Connection::Right::ToWriteMany, nullptr,
                       "ALTER SCHEMA " + Quoted(connection_->At().SchemaName()) + " RENAME TO " + Quoted(name), {});
    return Words::tr("schema %1").arg(name);
}

void PostgresEngine::Retire() {
    Commit();
}

void PostgresEngine::RetireFor(const Place& successor) {
    connection_->Write(
        Connection::Right::ToWriteMany, nullptr,
        "ALTER SCHEMA " + Quoted(successor.SchemaName()) + " RENAME TO " + Quoted(connection_->At().SchemaName()), {});
    Commit();
}

}  // namespace store::postgres
