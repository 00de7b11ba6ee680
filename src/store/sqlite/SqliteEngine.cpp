#include "store/sqlite/SqliteEngine.h"

#include <sqlite3.h>

#include "store/Words.h"
#include "store/sqlite/SqliteError.h"

namespace store::sqlite {

SqliteEngine::SqliteEngine(std::shared_ptr<Connection> connection, const QString& path)
    : connection_(std::move(connection)), log_(Handle()), files_(Handle(), path) {}

SqliteEngine::~SqliteEngine() {
    if (isLost_ || files_.AreInPlace()) return;
    GiveUp();
    if (writes_ > 0) SaveBesideTheStore();
}

void SqliteEngine::Begin() {
    if (InTransaction()) throw StoreError(NotSupported, Words::tr("A batch is open already."));
    RequireOwnFiles();
    connection_->Run("BEGIN IMMEDIATE");
}

void SqliteEngine::Commit() {
    RequireOwnFiles();
    connection_->Run("COMMIT");
    if (bursts_ == 0) EndRelaxed();
    RequireOwnFiles();
}

void SqliteEngine::Rollback() noexcept {
    ++writes_;
    if (!InTransaction()) return;
    sqlite3_exec(Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    try {
        if (bursts_ == 0) EndRelaxed();
    } catch (const StoreError&) {
        // What was committed before stays committed; the disk's refusal shows again at the next commit.
    }
}

bool SqliteEngine::InTransaction() const {
    return sqlite3_get_autocommit(Handle()) == 0;
}

// Inside a batch there is one commit only, and nothing to put off.
void SqliteEngine::BeginBurst() {
    if (bursts_++ > 0 || isRelaxed_ || InTransaction()) return;
    try {
        connection_->Run("PRAGMA synchronous = NORMAL");
    } catch (...) {
        --bursts_;
        throw;
    }
    isRelaxed_ = true;
    writesWhenRelaxed_ = writes_;
}

void SqliteEngine::EndBurst() {
    if (--bursts_ == 0 && !InTransaction()) EndRelaxed();
}

void SqliteEngine::EndRelaxed() {
    if (!isRelaxed_) return;
    const int code = writes_ == writesWhenRelaxed_ ? SQLITE_OK : log_.Sync();
    connection_->Run("PRAGMA synchronous = FULL");
    isRelaxed_ = false;
    if (code != SQLITE_OK)
        ThrowCode(code, QString::fromUtf8(sqlite3_errstr(code)), Words::tr("bringing a burst of changes to the disk"));
    if (writes_ == writesWhenRelaxed_) return;
    // A till posts all day: the pages of what it has written are not needed again, and would stay.
    sqlite3_db_release_memory(Handle());
    RequireOwnFiles();
}

Stamp SqliteEngine::Now() {
    WalWatch::Head head;
    if (!log_.Read(head)) return Stamp::Unknown;
    if (moment_ == 0 || head != headThen_ || writes_ != writesThen_) {
        ++moment_;
        headThen_ = head;
        writesThen_ = writes_;
    }
    return Stamp{moment_};
}

// Of earlier moments none comes back.
bool SqliteEngine::StillAt(Stamp stamp) {
    return stamp != Stamp::Unknown && stamp == Stamp{moment_} && writesThen_ == writes_ && log_.IsAt(headThen_);
}

}  // namespace store::sqlite
