#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "store/Listing.h"
#include "store/Place.h"
#include "store/Recordset.h"
#include "store/Schema.h"

namespace store {

class Engine;
namespace dialect {
struct Query;
}

// One open store, in a file or on a server. Several processes may hold one store open at once; each writes one commit
// an Update. When the files of one are deleted, moved or replaced while it is open, the next write and every later one
// throws FilesLost, and what was stored until then is saved as a store of its own beside it
// (ORVA-saved-YYYYMMDD-hhmmss.pos).
class Database {
public:
    // Opens an existing store for shared reading and writing, carrying an older one forward to the schema's version.
    // 3024 missing, 3343 foreign, damaged, empty or newer, 3356 held exclusively, 3027 not writable; ServerLost where a
    // server cannot be reached.
    static std::unique_ptr<Database> Open(const Place& place, const Schema& schema);
    // Makes a new, empty store; where one lies already that is refused (3204).
    static std::unique_ptr<Database> Create(const Place& place, const Schema& schema);
    ~Database();

    Recordset OpenRecordset(const QString& query);
    // All rows at once, as they are at this moment and for reading only: of many rows that are looked at from the first
    // to the last, a keyset would read each twice.
    Recordset OpenSnapshot(const QString& query);
    // The rows for a list that shows them: of one moment and for reading only, too, but on hand as they come in.
    Listing OpenListing(const QString& query);
    // The same with all rows on hand when it returns; a Watch can stop it.
    Listing ReadListing(const QString& query);
    // Runs an action query (UPDATE, DELETE) as one commit; gives the number of rows it touched.
    qint64 Execute(const QString& query);

    const Schema& GetSchema() const;

    // Many rows, all or none: between Begin and Commit the Updates of all cursors are one commit. For what changes
    // many rows as one thing; a sale never uses it. Cursors that added rows in a batch that was rolled back are to be
    // closed.
    class Batch {
    public:
        explicit Batch(Database& database);
        ~Batch();  // rolls back what was not committed
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;
        void Commit();

    private:
        Database& database_;
        bool open_ = true;
    };

    // What the store is kept by: "SQLite 3.40.1", "PostgreSQL 15.6".
    QString EngineVersion();
    // The engine's own integrity check: empty when the file is sound, else one line a fault.
    QStringList CheckIntegrity();
    // The indexes of the schema that the store lacks, as Table.Column+Column.
    QStringList MissingIndexes();
    // The store for this program alone, so that it can leave its place; 3218 when another has it open. Retire puts it
    // aside, under the name that PrepareToRetire gave, and may have another store, which nobody has open, come into its
    // place in the same step: a file of the same folder, or a schema of the same database.
    void TakeAlone();
    QString PrepareToRetire();
    void Retire();
    void RetireFor(const Place& successor);

    // A consistent copy in a file while others write; the file must not exist. It is opened again and checked.
    void BackupTo(const QString& path);
    // Adds all rows of another store, as it is at one moment, with their identities. This one is empty and has an open
    // batch.
    void AddAllOf(Database& other);
    void AddAllOf(Engine& other);
    // How the engine would run a query text, one line a step; for tests.
    QString ExplainPlan(const QString& query);

private:
    Recordset SnapshotOf(dialect::Query query);
    Listing ListingOf(dialect::Query query);
    Database(std::unique_ptr<Engine> engine, const Schema& schema);
    friend class Recordset;
    friend class Creation;
    friend class Burst;
    friend class Watch;
    friend class Patience;
    struct Internals;
    std::unique_ptr<Engine> engine_;
    std::unique_ptr<Internals> internals_;
};

// While it lives, `goesOn` is asked every few milliseconds for which a statement works; false stops the statement with
// error 3059. The function leaves the store alone.
class Watch {
public:
    Watch(Database& database, std::function<bool()> goesOn);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

private:
    Database& database_;
};

// While it lives, `begin` is called when a write begins to wait for another writer of the store. What it gives is asked
// every few milliseconds until that write is done; false gives up at once, with error 3218. Both leave the store alone.
// The innermost one counts.
class Patience {
public:
    Patience(Database& database, std::function<std::function<bool()>()> begin);
    ~Patience();
    Patience(const Patience&) = delete;
    Patience& operator=(const Patience&) = delete;

private:
    Database& database_;
    std::function<std::function<bool()>()> before_;
};

// While it lives, commits are visible and kept in order at once, but reach the disk together: at the latest when End()
// returns. A killed process loses nothing of what was acknowledged; a power cut in the middle keeps a prefix of it.
class Burst {
public:
    explicit Burst(Database& database);
    ~Burst();  // ends the burst if End() was not called; a failure there is swallowed
    Burst(const Burst&) = delete;
    Burst& operator=(const Burst&) = delete;
    void End();

private:
    Database& database_;
    bool open_ = true;
};

}  // namespace store
