#include <unordered_map>

#include "store/CaseFold.h"
#include "store/SqlText.h"
#include "store/postgres/PostgresEngine.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

namespace {

int OutputColumns(const dialect::Query& query) {
    return static_cast<int>(query.plan->output.size());
}

// Of one table the identity stands before the columns.
int FirstColumn(const dialect::Query& query) {
    return query.plan->table != nullptr ? 1 : 0;
}

dialect::BoundValue Folded(const dialect::BoundValue& value) {
    const auto* text = std::get_if<QByteArray>(&value);
    return text == nullptr ? value : dialect::BoundValue(FoldedText(*text));
}

void AppendKeys(const Answer& answer, std::vector<qint64>& keys) {
    keys.reserve(keys.size() + static_cast<size_t>(answer.Rows()));
    for (int row = 0; row < answer.Rows(); ++row) keys.push_back(answer.Integer(row, 0));
}

}  // namespace

PostgresEngine::PostgresEngine(std::unique_ptr<Connection> connection, const Schema& schema)
    : connection_(std::move(connection)), schema_(schema) {}

void PostgresEngine::Prepare(const dialect::Plan& plan, const QString&) {
    plan.prepared = std::make_shared<ServerQuery>(Emit(plan));
}

const ServerQuery& PostgresEngine::PreparedOf(const dialect::Query& query) {
    return *static_cast<const ServerQuery*>(query.plan->prepared.get());
}

Arguments PostgresEngine::Bound(const dialect::Query& query, size_t slots) {
    Arguments arguments;
    for (const Slot& slot : std::span(PreparedOf(query).slots).first(slots)) {
        const dialect::BoundValue& value = query.values[slot.literal];
        arguments.Add(slot.folded ? Folded(value) : value);
    }
    return arguments;
}

Answer PostgresEngine::ReadWhole(const dialect::Query& query, const Client::TakeRow& takeRow) {
    const ServerQuery& prepared = PreparedOf(query);
    return connection_->Read(prepared.whole, Bound(query, prepared.slots.size()), takeRow);
}

void PostgresEngine::ReadAll(const dialect::Query& query, RowBlock& rows) {
    const Answer answer = ReadWhole(query);
    rows.Clear(OutputColumns(query));
    rows.Reserve(answer.Rows());
    for (int row = 0; row < answer.Rows(); ++row) answer.AppendRow(rows, row, FirstColumn(query));
}

// The server takes the moment before it gives the first row.
void PostgresEngine::ReadInBlocks(const dialect::Query& query, int rowsEach,
                                  const std::function<void(RowBlock&&)>& take) {
    bool hasBegun = false;
    RowBlock rows;
    rows.Clear(OutputColumns(query));
    ReadWhole(query, [&](const Answer& row) {
        if (!std::exchange(hasBegun, true)) take({});
        row.AppendRow(rows, 0, FirstColumn(query));
        if (rows.Rows() < rowsEach) return;
        take(std::exchange(rows, {}));
        rows.Clear(OutputColumns(query));
        rows.Reserve(rowsEach);
    });
    if (!hasBegun) take({});
    take(std::move(rows));
}

void PostgresEngine::ReadKeyset(const dialect::Query& query, int withData, std::vector<qint64>& keys, RowBlock& rows) {
    const Answer answer = ReadWhole(query);
    rows.Clear(OutputColumns(query));
    AppendKeys(answer, keys);
    for (int row = 0; row < std::min(answer.Rows(), withData); ++row) answer.AppendRow(rows, row, 1);
}

void PostgresEngine::ReadAfter(const dialect::Query& query, qint64 after, qint64 upTo, int limit,
                               std::vector<qint64>& keys, RowBlock& rows) {
    const ServerQuery& prepared = PreparedOf(query);
    Arguments arguments = Bound(query, prepared.columnSlots);
    for (const qint64 number : {after, upTo}) arguments.Add(number);
    const Answer answer = connection_->Read(prepared.after + std::to_string(limit), arguments);
    rows.Clear(OutputColumns(query));
    AppendKeys(answer, keys);
    for (int row = 0; row < answer.Rows(); ++row) answer.AppendRow(rows, row, 1);
}

void PostgresEngine::ReadRows(const dialect::Query& query, std::span<const qint64> keys, RowBlock& rows) {
    const ServerQuery& prepared = PreparedOf(query);
    Arguments arguments = Bound(query, prepared.columnSlots);
    const bool isOne = keys.size() == 1;
    isOne ? arguments.Add(keys.front()) : arguments.Add(keys);
    const Answer answer = connection_->Read(isOne ? prepared.one : prepared.some, arguments);
    std::unordered_map<qint64, int> places;
    for (int row = 0; row < answer.Rows(); ++row) places.emplace(answer.Integer(row, 0), row);
    rows.Clear(OutputColumns(query));
    for (const qint64 key : keys) {
        const auto place = places.find(key);
        if (place == places.end())
            rows.AddGone();
        else
            answer.AppendRow(rows, place->second, 1);
    }
}

void PostgresEngine::ReadKeys(const Table& table, qint64 after, qint64 upTo, std::vector<qint64>& keys) {
    const std::string key = Quoted(KeyColumn(table));
    Arguments arguments(after);
    arguments.Add(upTo);
    AppendKeys(connection_->Read("SELECT " + key + " FROM " + Quoted(table.name) + " WHERE " + key +
                                     " > $1::bigint AND " + key + " <= $2::bigint ORDER BY " + key,
                                 arguments),
               keys);
}

std::vector<qint64> PostgresEngine::FindRows(const dialect::Query& criteria) {
    std::vector<qint64> rows;
    AppendKeys(ReadWhole(criteria), rows);
    return rows;
}

qint64 PostgresEngine::LastRow(const Table& table) {
    return connection_->Read("SELECT max(" + Quoted(KeyColumn(table)) + ") FROM " + Quoted(table.name)).Integer(0, 0);
}

}  // namespace store::postgres
