#pragma once

#include <QString>

struct sqlite3;

namespace SQLite {
class Exception;
}

namespace store::sqlite {

// Throws the StoreError that stands for the connection's last failure; `doing` says in words what was tried.
[[noreturn]] void ThrowLast(sqlite3* connection, const QString& doing);
// The same for a bare result code, as the file layer gives it.
[[noreturn]] void ThrowCode(int extendedCode, const QString& message, const QString& doing);

// The connection's last code, which names a full disk where the engine only speaks of a refused access, as it does of
// the files that it makes for itself.
int CodeWithoutRoom(sqlite3* connection, int extendedCode);

// The result code of an exception of the wrapper, as exact as it knows it.
int CodeOf(const SQLite::Exception& error);

}  // namespace store::sqlite
