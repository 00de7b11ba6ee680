#pragma once

#include <SQLiteCpp/Database.h>

#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "store/Engine.h"

namespace store::sqlite {

constexpr int UsualMemory = 16'000;  // kilobytes, of a connection

// An open file with the text rules and a limit to how long it waits for others. Statements share it, so that none of
// them outlives the connection it was prepared on.
class Connection {
public:
    using Patience = std::chrono::milliseconds;

    // An existing file is opened for reading and writing; `create` makes one. A SqliteError when that fails.
    Connection(const QString& path, bool create, Patience patience);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Another one to the same file, which waits for others as long as this one.
    std::shared_ptr<Connection> OpenBeside();

    sqlite3* Handle() { return database_.getHandle(); }
    void SetPatience(Patience patience) { patience_ = patience; }
    // `begin` is called when others begin to be waited for within Waits; what it gives is asked until those end, false
    // ends the patience. Gives back the one that stood before.
    BeginWait AskWhileWaiting(BeginWait begin) { return std::exchange(beginWait_, std::move(begin)); }
    // Runs a statement without rows; a SqliteError when it fails.
    void Run(const char* sql);
    // The first column of a statement's first row.
    qint64 Integer(const char* sql);
    QString Text(const char* sql);
    // Becomes a copy of another, page by page in one read of it, so that it is of one moment.
    void CopyFrom(Connection& source);
    // How much of the file is kept in memory, and how much is sorted at once; as it was when that is refused.
    void UseMemory(int kilobytes) noexcept;

    // Around a statement that may have to wait for others.
    class Waits {
    public:
        explicit Waits(Connection& connection) : connection_(connection) { ++connection_.waits_; }
        ~Waits() {
            if (--connection_.waits_ == 0) connection_.goesOn_ = {};
        }
        Waits(const Waits&) = delete;
        Waits& operator=(const Waits&) = delete;

    private:
        Connection& connection_;
    };

    // Several writes as one, undone when they do not come to Commit.
    class Transaction {
    public:
        explicit Transaction(Connection& connection) : connection_(connection) { connection_.Run("BEGIN IMMEDIATE"); }
        ~Transaction();
        Transaction(const Transaction&) = delete;
        Transaction& operator=(const Transaction&) = delete;
        void Commit();

    private:
        Connection& connection_;
        bool open_ = true;
    };

    // Several reads of one moment; within a transaction they are so anyway.
    class Moment {
    public:
        explicit Moment(Connection& connection);
        ~Moment();
        Moment(const Moment&) = delete;
        Moment& operator=(const Moment&) = delete;

    private:
        Connection& connection_;
        const bool open_;
    };

private:
    bool IsLeft();
    static int WaitForOthers(void* self, int tries);

    SQLite::Database database_;
    Patience patience_;
    std::chrono::steady_clock::time_point waitingSince_;
    int waits_ = 0;
    BeginWait beginWait_;
    std::function<bool()> goesOn_;  // of the wait that is on
};

}  // namespace store::sqlite
