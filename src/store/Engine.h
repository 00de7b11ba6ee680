#pragma once

#include <QStringList>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "store/Place.h"
#include "store/RowBlock.h"
#include "store/Schema.h"
#include "store/dialect/Plan.h"

namespace store {

// A moment in a store's history, as the engine that gave it numbers it; the number tells nobody else anything, and two
// moments are one when it is the same.
enum class Stamp : quint64 { Unknown };

// One field of a row to be written: a position in the table's columns, and its value in the units of Conversion.h.
struct FieldChange {
    int column = 0;
    dialect::BoundValue value;
};

using BeginWait = std::function<std::function<bool()>()>;

// What a store asks of the engine beneath it, and what holds for every engine.
//
// Identity. A row has a number above 0 that is never used again and rises from row to row as they are added; a column
// that numbers itself is that number.
//
// Commits. A write outside of a batch is one commit, a batch is one. When a call returns, its commit is seen by every
// call that begins later, on any connection, and is on the disk; within a burst it is on the disk when the burst ends
// at the latest. Where the reply to a write gets lost on the way, it throws ServerLost, and nobody knows. The commits
// of a connection keep their order: nobody sees one without those before it, and neither does whoever reads the disk
// after a power cut. Every read is of one moment, of which it sees all commits; it sees what its own connection wrote
// in an open batch too. No read transaction outlives its call.
//
// Errors. Failures are StoreErrors, and a write that fails has written nothing. In a batch it alone is undone: what the
// batch wrote before stays, and it goes on. But a refusal of the disk (3026, 3043), a write that the user left (3059)
// and lost files undo the whole batch: InTransaction() is false then, and Commit throws.
//
// Rows that are current. What was read after Now() was asked for is what a read would give still, for as long as
// StillAt() says yes to its stamp: nobody has committed and this connection has written nothing since. No commit that
// was acknowledged before the question is missed, whoever made it; the answer may be no without a cause, which costs a
// reading. Cursors ask it before every field, so it must cost next to nothing; an engine that would have to ask
// somebody else says no and knows of no commits.
//
// Order. Nulls come before all values, after them when descending. Texts are ordered and are equal by CaseFold.h, in
// indexes and groups too. Rows of one table without ORDER BY come by identity, as they were added: reports and receipts
// rest on it. Only where a condition lets an engine find them by an index in pieces (a range of days, a list of
// values), or an index holds the one column that is asked for, do they come by that column first. An ORDER BY keeps
// this order among rows that it finds equal, unless it descends. Groups without ORDER BY come in the order of what they
// are grouped by; which of several spellings stands for a group is open, and so is the order of a join without ORDER
// BY.
class Engine {
public:
    virtual ~Engine() = default;

    // Makes a plan ready, before anything is asked with it. QueryError 3075 when the engine's own parser could not take
    // it; `text` is what the plan came from.
    virtual void Prepare(const dialect::Plan& plan, const QString& text) = 0;

    // All rows of a query.
    virtual void ReadAll(const dialect::Query& query, RowBlock& rows) = 0;
    // The same in blocks of so many rows, the last of what is left. The first call, without rows, tells that the moment
    // is taken of which all rows are.
    virtual void ReadInBlocks(const dialect::Query& query, int rowsEach,
                              const std::function<void(RowBlock&&)>& take) = 0;
    // The identities of all rows of a one-table query in its order, and the data of the first `withData` of them.
    virtual void ReadKeyset(const dialect::Query& query, int withData, std::vector<qint64>& keys, RowBlock& rows) = 0;
    // Up to `limit` rows with after < identity <= upTo, by identity; the query's own condition and order are left out.
    // Their identities are added to `keys`.
    virtual void ReadAfter(const dialect::Query& query, qint64 after, qint64 upTo, int limit, std::vector<qint64>& keys,
                           RowBlock& rows) = 0;
    // The rows of these identities, in this order; one that is gone is marked so.
    virtual void ReadRows(const dialect::Query& query, std::span<const qint64> keys, RowBlock& rows) = 0;
    // The identities of a table with after < identity <= upTo are added to `keys`.
    virtual void ReadKeys(const Table& table, qint64 after, qint64 upTo, std::vector<qint64>& keys) = 0;
    // The identities of the rows of its table that meet a criteria, rising.
    virtual std::vector<qint64> FindRows(const dialect::Query& criteria) = 0;
    // The highest identity of a table, 0 when it is empty.
    virtual qint64 LastRow(const Table& table) = 0;

    // Writes; each is a commit of its own outside Begin and Commit. Fields come in the order of the columns. When the
    // store's files are no longer those in the folder, every write, Begin, Commit and EndBurst throws FilesLost.
    virtual qint64 Insert(const Table& table, std::span<const FieldChange> fields) = 0;
    // False when the row is gone, or when a field is no longer exactly as expected.
    virtual bool Change(const Table& table, qint64 row, std::span<const FieldChange> fields,
                        std::span<const FieldChange> expected) = 0;
    virtual bool Remove(const Table& table, qint64 row) = 0;
    virtual qint64 Execute(const dialect::Query& action) = 0;

    virtual void Begin() = 0;  // takes the right to write at once
    virtual void Commit() = 0;
    virtual void Rollback() noexcept = 0;
    virtual bool InTransaction() const = 0;

    // Bursts may be nested; the outermost one counts.
    virtual void BeginBurst() = 0;
    virtual void EndBurst() = 0;

    // Asked every few milliseconds of a statement's work; false stops it with 3059. An empty function: nobody asks.
    virtual void AskWhileWorking(std::function<bool()> goesOn) = 0;
    // `begin` is called when a write begins to wait for another writer. What it gives is asked every few milliseconds
    // until that write is done; false gives up at once, with 3218. An empty function: nobody asks. Gives back the one
    // that stood before.
    virtual BeginWait AskWhileWaiting(BeginWait begin) = 0;

    // Another connection to the same store, for another thread; null when there is none to be had.
    virtual std::unique_ptr<Engine> OpenBeside() = 0;

    // Whether StillAt can say so here at all. Where it cannot, a row is current until its cursor moves.
    virtual bool KnowsOfCommits() const = 0;
    virtual Stamp Now() = 0;
    virtual bool StillAt(Stamp stamp) = 0;

    // All rows of the tables of a schema, of one moment, by identity and in blocks; a table without rows comes once.
    // With each comes the highest identity that was ever given in its table.
    struct StoredRows {
        std::vector<qint64> keys;
        RowBlock rows;  // all columns of the table
        qint64 lastKey = 0;
    };
    virtual void ReadStore(const Schema& schema, const std::function<void(const Table&, const StoredRows&)>& take) = 0;
    // Adds rows that another store gave, with their identities. Within a batch.
    virtual void AddRows(const Table& table, const StoredRows& rows) = 0;

    // Begins a batch in which the store is this connection's alone: others cannot even open it. 3218 when one has it
    // open, where that is to be known.
    virtual void TakeAlone() = 0;
    // The store leaves its place for good and is kept beside it: the first gives the name that it will have, and throws
    // when that cannot be; the second does it and ends what TakeAlone began. The third also brings another store into
    // the place, in one step.
    virtual QString PrepareToRetire() = 0;
    virtual void Retire() = 0;
    virtual void RetireFor(const Place& successor) = 0;

    // Its name and version, as whoever helps asks for them.
    virtual QString Version() = 0;
    virtual QStringList CheckIntegrity() = 0;
    virtual QStringList MissingIndexes(const Schema& schema) = 0;
    virtual void BackupTo(const QString& path) = 0;
    virtual QString Explain(const dialect::Query& query) = 0;
};

}  // namespace store
