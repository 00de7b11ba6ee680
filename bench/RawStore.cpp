#include "bench/RawStore.h"

#include <QFile>
#include <stdexcept>

#include "store/sqlite/TextRules.h"

namespace bench {

namespace {

[[noreturn]] void FailFor(sqlite3* connection) {
    throw std::runtime_error(sqlite3_errmsg(connection));
}

}  // namespace

RawStatement::RawStatement(sqlite3* connection, const char* sql) : statement_(nullptr) {
    if (sqlite3_prepare_v3(connection, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement_, nullptr) != SQLITE_OK)
        FailFor(connection);
}

void RawStatement::Fail() const {
    FailFor(sqlite3_db_handle(statement_));
}

RawStore::RawStore(const QString& path) {
    constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &connection_, flags, nullptr) != SQLITE_OK)
        FailFor(connection_);
    store::sqlite::RegisterTextRules(connection_);
    if (sqlite3_exec(connection_, "PRAGMA cache_size = -16000; PRAGMA synchronous = NORMAL", nullptr, nullptr,
                     nullptr) != SQLITE_OK)
        FailFor(connection_);
}

void RawStore::SyncLog() {
    sqlite3_file* log = nullptr;
    sqlite3_file_control(connection_, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log);
    if (log == nullptr || log->pMethods->xSync(log, SQLITE_SYNC_NORMAL) != SQLITE_OK) FailFor(connection_);
}

}  // namespace bench
