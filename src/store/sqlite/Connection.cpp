#include "store/sqlite/Connection.h"

#include <SQLiteCpp/Backup.h>
#include <sqlite3.h>

#include <QFile>
#include <thread>

#include "store/Words.h"
#include "store/sqlite/SqliteError.h"
#include "store/sqlite/Statement.h"
#include "store/sqlite/TextRules.h"

namespace store::sqlite {

namespace {

// The one place where the library's own exceptions are met.
template <typename Work>
auto Translated(const QString& doing, const Work& work) {
    try {
        return work();
    } catch (const SQLite::Exception& error) {
        const int extended = error.getExtendedErrorCode();
        ThrowCode(extended > 0 ? extended : error.getErrorCode(), QString::fromUtf8(error.what()), doing);
    }
}

auto Opened(const QString& path, bool create) {
    const int flags = SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX | (create ? SQLite::OPEN_CREATE : 0);
    return Translated(Words::tr("opening %1").arg(path),
                      [&] { return SQLite::Database(QFile::encodeName(path).toStdString(), flags); });
}

}  // namespace

Connection::Connection(const QString& path, bool create, Patience patience)
    : database_(Opened(path, create)), patience_(patience) {
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

qint64 Connection::Integer(const char* sql) {
    Statement statement(Handle(), sql);
    return statement.Step() ? statement.Integer(0) : 0;
}

QString Connection::Text(const char* sql) {
    Statement statement(Handle(), sql);
    return statement.Step() ? statement.Text(0) : QString();
}

void Connection::CopyFrom(Connection& source) {
    const bool isWhole = Translated(Words::tr("copying a store"), [&] {
        SQLite::Backup backup(database_, source.database_);
        return backup.executeStep(-1) == SQLITE_DONE;
    });
    if (!isWhole)
        throw StoreError(StoreLocked, Words::tr("The store is locked by another user and could not be copied."));
}

Connection::Transaction::~Transaction() {
    if (open_) sqlite3_exec(connection_.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Connection::Transaction::Commit() {
    connection_.Run("COMMIT");
    open_ = false;
}

Connection::Moment::Moment(Connection& connection)
    : connection_(connection), open_(sqlite3_get_autocommit(connection.Handle()) != 0) {
    if (open_) connection_.Run("BEGIN");
}

Connection::Moment::~Moment() {
    if (open_) sqlite3_exec(connection_.Handle(), "COMMIT", nullptr, nullptr, nullptr);
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
