#include "store/sqlite/Connection.h"

#include <sqlite3.h>

#include <QFile>
#include <thread>

#include "store/sqlite/SqliteError.h"
#include "store/sqlite/TextRules.h"

using namespace Qt::StringLiterals;

namespace store::sqlite {

Connection::Connection(const QString& path, bool create, Patience patience)
    : database_(QFile::encodeName(path).toStdString(),
                SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX | (create ? SQLite::OPEN_CREATE : 0)),
      patience_(patience) {
    sqlite3_extended_result_codes(Handle(), 1);
    sqlite3_busy_handler(Handle(), &Connection::WaitForOthers, this);
    RegisterTextRules(Handle());
}

std::shared_ptr<Connection> Connection::OpenBeside() {
    return std::make_shared<Connection>(QFile::decodeName(sqlite3_db_filename(Handle(), "main")), false, patience_);
}

void Connection::Run(const char* sql) {
    const Waits waits(*this);
    if (sqlite3_exec(Handle(), sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        ThrowLast(Handle(), QString::fromUtf8(sql));
}

void Connection::UseMemory(int kilobytes) noexcept {
    const std::string sql = "PRAGMA cache_size = -" + std::to_string(kilobytes);
    sqlite3_exec(Handle(), sql.c_str(), nullptr, nullptr, nullptr);
}

bool Connection::IsLeft() {
    if (waits_ > 0 && beginWait_ && !goesOn_) goesOn_ = beginWait_();
    return goesOn_ && !goesOn_();
}

// Commits of others are short, so asking again soon and at uneven times serves everybody; the engine's own handler
// waits up to a tenth of a second between two tries.
int Connection::WaitForOthers(void* self, int tries) {
    constexpr int longestNap = 8;
    auto& connection = *static_cast<Connection*>(self);
    const auto now = std::chrono::steady_clock::now();
    if (tries == 0) connection.waitingSince_ = now;
    if (now - connection.waitingSince_ >= connection.patience_) return 0;
    if (connection.IsLeft()) return 0;
    const auto unevenness = std::chrono::microseconds(now.time_since_epoch().count() / 1000 % 1000);
    std::this_thread::sleep_for(std::chrono::milliseconds(std::min(tries, longestNap)) + unevenness);
    return 1;
}

}  // namespace store::sqlite
