#include "store/sqlite/WalWatch.h"

#include <sqlite3.h>

#include <atomic>
#include <cstring>

namespace store::sqlite {

namespace {

constexpr int IndexBytes = 32768;

}  // namespace

// The engine maps the index when it first reads, and the mapping stays for as long as the connection does.
bool WalWatch::Attach() {
    if (tried_) return index_ != nullptr;
    tried_ = true;
    sqlite3_file* file = nullptr;
    if (sqlite3_file_control(connection_, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || file == nullptr)
        return false;
    const sqlite3_io_methods* methods = file->pMethods;
    if (methods == nullptr || methods->iVersion < 2 || methods->xShmMap == nullptr) return false;
    void volatile* memory = nullptr;
    if (methods->xShmMap(file, 0, IndexBytes, 0, &memory) != SQLITE_OK) return false;
    index_ = static_cast<const volatile quint64*>(memory);
    return index_ != nullptr;
}

bool WalWatch::Read(Head& header) {
    if (!Attach()) return false;
    // Writers fill the second copy before the first.
    for (size_t i = 0; i < header.size(); ++i) header[i] = index_[i];
    std::atomic_thread_fence(std::memory_order_acquire);
    for (size_t i = 0; i < header.size(); ++i)
        if (header[i] != index_[i + header.size()]) return false;

    constexpr size_t isInitialisedAt = 12;
    return reinterpret_cast<const unsigned char*>(header.data())[isInitialisedAt] != 0;
}

int WalWatch::Sync() const {
    sqlite3_file* log = nullptr;
    const int code = sqlite3_file_control(connection_, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log);
    if (code != SQLITE_OK) return code;
    if (log == nullptr || log->pMethods == nullptr) return SQLITE_OK;
    return log->pMethods->xSync(log, SQLITE_SYNC_NORMAL);
}

}  // namespace store::sqlite
