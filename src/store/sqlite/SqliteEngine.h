#pragma once

#include <map>

#include "store/Engine.h"
#include "store/sqlite/Connection.h"
#include "store/sqlite/QuerySql.h"
#include "store/sqlite/Statement.h"
#include "store/sqlite/StoreFiles.h"
#include "store/sqlite/WalWatch.h"

namespace store::sqlite {

// The embedded engine: one file, a write-ahead log, one connection.
class SqliteEngine : public Engine {
public:
    SqliteEngine(std::shared_ptr<Connection> connection, const QString& path);
    ~SqliteEngine() override;

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

    void Begin() override;
    void Commit() override;
    void Rollback() noexcept override;
    bool InTransaction() const override;

    void BeginBurst() override;
    void EndBurst() override;

    void AskWhileWorking(std::function<bool()> goesOn) override;
    BeginWait AskWhileWaiting(BeginWait begin) override;

    std::unique_ptr<Engine> OpenBeside() override;

    bool KnowsOfCommits() const override { return true; }
    Stamp Now() override;
    bool StillAt(Stamp stamp) override;

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
    struct Prepared;
    enum class Shape { LastRow, Keys, Extent, Insert, Change, Remove };
    // A statement of the engine's own for one table, and for sets of its columns where they play a part.
    struct ShapeKey {
        Shape shape;
        const Table* table;
        ColumnSet columns = {};
        ColumnSet expected = {};
        auto operator<=>(const ShapeKey&) const = default;
    };

    static std::string SqlOf(const ShapeKey& key);
    static Prepared& PreparedOf(const dialect::Query& query);
    Statement& StatementFor(const ShapeKey& key);
    bool ScansWholeTable(const dialect::Query& query);
    void ReadKeysAfter(const dialect::Query& query, qint64 after, std::vector<qint64>& keys);
    bool AppendIfWithoutGap(const Table& table, qint64 after, qint64 upTo, std::vector<qint64>& keys);
    Statement& RowsAfter(const dialect::Query& query, qint64 after);
    void ReadRange(const dialect::Query& query, std::span<const qint64> keys, RowBlock& rows);
    void ReadEach(const dialect::Query& query, std::span<const qint64> keys, RowBlock& rows);
    void EndRelaxed();
    void Write(Statement& statement);
    void RequireOwnFiles() { RequireInPlace(files_.AreInPlace()); }
    void RequireOwnLog() { RequireInPlace(files_.LogIsInPlace()); }
    void RequireInPlace(bool isInPlace);
    void GiveUp() noexcept;
    void SaveBesideTheStore();
    [[noreturn]] void ThrowFilesLost() const;
    sqlite3* Handle() const { return connection_->Handle(); }

    std::shared_ptr<Connection> connection_;
    WalWatch log_;
    StoreFiles files_;
    bool isLost_ = false;
    QString savedAs_;
    QString retiresAs_;
    QString whyNotSaved_;
    std::map<ShapeKey, Statement> statements_;
    quint64 writes_ = 0;
    // The last moment that was asked for: what had been committed by anybody, and written by this connection.
    quint64 moment_ = 0;
    WalWatch::Head headThen_ = {};
    quint64 writesThen_ = 0;
    int bursts_ = 0;
    bool isRelaxed_ = false;  // commits reach the disk later
    quint64 writesWhenRelaxed_ = 0;
    std::function<bool()> goesOn_;
};

}  // namespace store::sqlite
