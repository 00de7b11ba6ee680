#pragma once

#include <map>

#include "store/postgres/Connection.h"
#include "store/postgres/Emitter.h"

namespace store::postgres {

// The engine of a store on a server: one schema, one connection. It cannot say for free whether anybody committed.
class PostgresEngine : public Engine {
public:
    PostgresEngine(std::unique_ptr<Connection> connection, const Schema& schema);

    void Prepare(const dialect::Plan& plan, const QString& text) override;

    void ReadAll(const dialect::Query& query, RowBlock& rows) override;
    void ReadInBlocks(const dialect::Query& query, int rowsEach, const std::function<void(RowBlock&&)>& take) override;
    void ReadKeyset(const dialect::Query& query, int withData, std::vector<qint64>& keys, RowBlock& rows) override;
    void ReadAfter(const dialect::Query& query, qint64 after, qint64 upTo, int limit, std::vector<qint64>& keys,
                   RowBlock& rows) override;
    void ReadRows(const dialect::Query& query, std::span<const qint64> keys, RowBlock& rows) override;
    void ReadKeys(const Table& table, qint64 after, qint64 upTo, std::vector<qint64>& keys) override;
    std::vector<qint64> FindRows(const dialect::Query& criteria) override;
    qint64 LastRow(const Table& table) override;

    qint64 Insert(const Table& table, std::span<const FieldChange> fields) override;
    bool Change(const Table& table, qint64 row, std::span<const FieldChange> fields,
                std::span<const FieldChange> expected) override;
    bool Remove(const Table& table, qint64 row) override;
    qint64 Execute(const dialect::Query& action) override;

    void Begin() override { connection_->Begin(); }
    void Commit() override;
    void Rollback() noexcept override;
    bool InTransaction() const override { return connection_->InTransaction(); }

    void BeginBurst() override { connection_->BeginBurst(); }
    void EndBurst() override { connection_->EndBurst(); }

    void AskWhileWorking(std::function<bool()> goesOn) override { connection_->AskWhileWorking(std::move(goesOn)); }
    BeginWait AskWhileWaiting(BeginWait begin) override { return connection_->AskWhileWaiting(std::move(begin)); }

    std::unique_ptr<Engine> OpenBeside() override;

    bool KnowsOfCommits() const override { return false; }
    Stamp Now() override { return Stamp::Unknown; }
    bool StillAt(Stamp) override { return false; }

    void ReadStore(const Schema& schema, const std::function<void(const Table&, const StoredRows&)>& take) override;
    void AddRows(const Table& table, const StoredRows& rows) override;
    void TakeAlone() override;
    QString PrepareToRetire() override;
    void Retire() override;
    void RetireFor(const Place& successor) override;

    QString Version() override;
    QStringList CheckIntegrity() override;
    QStringList MissingIndexes(const Schema& schema) override;
    void BackupTo(const QString& path) override;
    QString Explain(const dialect::Query& query) override;

private:
    // A statement that writes: an INSERT of these columns; a change of them, which expects others to be as they were.
    struct WriteShape {
        enum class Kind { Insert, Change } kind;
        const Table* table;
        std::vector<int> columns;
        std::vector<int> expected = {};
        auto operator<=>(const WriteShape&) const = default;
    };

    static const ServerQuery& PreparedOf(const dialect::Query& query);
    static Arguments Bound(const dialect::Query& query, size_t slots);
    Answer ReadWhole(const dialect::Query& query, const Client::TakeRow& takeRow = {});

    std::unique_ptr<Connection> connection_;
    const Schema schema_;
    std::map<WriteShape, std::string> writes_;  // their texts
    std::vector<const Table*> filled_;          // by AddRows, in the open batch
};

}  // namespace store::postgres
