#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <QString>
#include <chrono>
#include <functional>
#include <memory>

namespace store::sqlite {

constexpr int UsualMemory = 16'000;  // kilobytes, of a connection

// An open file with the text rules and a limit to how long it waits for others. Statements share it, so that none of
// them outlives the connection it was prepared on.
class Connection {
public:
    using Patience = std::chrono::milliseconds;

    // An existing file is opened for reading and writing; `create` makes one. SQLite::Exception when that fails.
    Connection(const QString& path, bool create, Patience patience);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Another one to the same file, which waits for others as long as this one.
    std::shared_ptr<Connection> OpenBeside();

    SQLite::Database& Database() { return database_; }
    sqlite3* Handle() { return database_.getHandle(); }
    void SetPatience(Patience patience) { patience_ = patience; }
    // Asked while others are waited for; false ends the patience. An empty function: nobody asks.
    void AskWhileWaiting(std::function<bool()> goesOn) { goesOn_ = std::move(goesOn); }
    // Runs a statement without rows; a StoreError when it fails.
    void Run(const char* sql);
    // How much of the file is kept in memory, and how much is sorted at once; as it was when that is refused.
    void UseMemory(int kilobytes) noexcept;

private:
    static int WaitForOthers(void* self, int tries);

    SQLite::Database database_;
    Patience patience_;
    std::chrono::steady_clock::time_point waitingSince_;
    std::function<bool()> goesOn_;
};

}  // namespace store::sqlite
