#pragma once

#include <map>

#include "store/Engine.h"
#include "store/postgres/Client.h"

namespace store::postgres {

constexpr int WorkingPatience = 4000;  // milliseconds

// A connection to the schema of one shop that outlives the server's: when it was lost, the next call connects anew,
// where nothing hangs on what was before. It keeps the rules of batches and bursts.
//
// Locks. One lock stands for the right to write: single writes share it, a batch and a statement that may touch many
// rows have it alone. Rows of one table are added one after the other, under a lock of the table, so that the numbers
// that they get rise as they become visible.
class Connection {
public:
    enum class Right { ToWriteOne, ToWriteMany, ToAdd };

    explicit Connection(Place place);

    const Place& At() const { return place_; }

    Answer Read(const std::string& sql, const Arguments& arguments = {}, const Client::TakeRow& takeRow = {});
    // One write, with its right for a table. In a batch it is undone alone when it fails.
    Answer Write(Right right, const Table* table, const std::string& sql, const Arguments& arguments);
    // Many writes of a batch in one trip, all or none.
    void WriteAll(const std::vector<Command>& commands);
    // What `work` reads is of one moment.
    void ReadTogether(const std::function<void()>& work);

    void Begin();
    void Commit();
    void Rollback() noexcept;
    bool InTransaction() const { return inTransaction_; }
    void BeginBurst() { ++bursts_; }
    void EndBurst();

    // How long a lock of others is waited for.
    void SetPatience(int milliseconds);
    void AskWhileWorking(std::function<bool()> goesOn) { working_ = std::move(goesOn); }
    BeginWait AskWhileWaiting(BeginWait begin) { return std::exchange(beginWait_, std::move(begin)); }

private:
    enum class Kind { Read, Write };

    void Connect();
    void RequireConnection();
    void Lose();
    Answer Make(Kind kind, const std::vector<Command>& commands, size_t main, const Client::TakeRow& takeRow = {});
    Answer MakeInBatch(Kind kind, const std::vector<Command>& commands, const Client::TakeRow& takeRow = {});
    Answer MakeAlone(Right right, const Table* table, const Command& command);
    void BackToMark();
    void SendRollback() noexcept;
    Client::GoesOn Questions(Kind kind);
    void EndRelaxed();
    [[noreturn]] void ThrowLeft(Kind kind) const;
    [[noreturn]] void ThrowBatchLost() const;
    [[noreturn]] void ThrowBurstLost() const;

    const Place place_;
    std::unique_ptr<Client> client_;
    std::string patience_;
    std::string durably_;  // how commits reach the disk by the server's own setting
    std::map<std::pair<Right, const Table*>, std::string> locks_;

    bool inTransaction_ = false;
    bool batchIsLost_ = false;  // until it is ended
    int bursts_ = 0;
    bool isRelaxed_ = false;   // the server says that a commit is done before it is on its disk
    bool hasRelaxed_ = false;  // and it has said so in this burst
    bool burstIsLost_ = false;

    std::function<bool()> working_;
    BeginWait beginWait_;
};

}  // namespace store::postgres
