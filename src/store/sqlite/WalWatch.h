#pragma once

#include <QtGlobal>
#include <array>

struct sqlite3;

namespace store::sqlite {

// Looks at the write-ahead log beside the engine. Its shared index begins with a header of 48 bytes, kept twice, that
// every commit by any process rewrites with a counter and a checksum (the documented WAL-index format): two equal
// headers mean that nothing was committed between. SQLITE_FCNTL_DATA_VERSION says the same only to a connection that
// reads, and a transaction for every field that is asked for makes a lookup cost four times as much, a walk twenty.
class WalWatch {
public:
    using Head = std::array<quint64, 6>;

    explicit WalWatch(sqlite3* connection) : connection_(connection) {}

    // The header; false while it cannot be had or is just being written.
    bool Read(Head& header);
    // Whether the header is this one, which Read gave. The copy that is written last decides.
    bool IsAt(const Head& header) const {
        for (size_t i = 0; i < header.size(); ++i)
            if (index_[i] != header[i]) return false;
        return true;
    }
    // Brings the log to the disk; the result code of the file layer.
    int Sync() const;

private:
    bool Attach();

    sqlite3* connection_;
    const volatile quint64* index_ = nullptr;
    bool tried_ = false;
};

}  // namespace store::sqlite
