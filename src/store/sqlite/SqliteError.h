#pragma once

#include <QString>

struct sqlite3;

namespace store::sqlite {

// Throws the StoreError that stands for the connection's last failure; `doing` says in words what was tried.
[[noreturn]] void ThrowLast(sqlite3* connection, const QString& doing);
// The same for a bare result code, as the file layer gives it.
[[noreturn]] void ThrowCode(int extendedCode, const QString& message, const QString& doing);

}  // namespace store::sqlite
