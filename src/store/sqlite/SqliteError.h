#pragma once

#include "store/StoreError.h"

struct sqlite3;

namespace store::sqlite {

// What SQLite refused, for those who can say better what it means; to all others a StoreError.
class SqliteError : public StoreError {
public:
    SqliteError(int number, QString description, int code, QString message)
        : StoreError(number, std::move(description)), code_(code), message_(std::move(message)) {}

    int Code() const { return code_; }  // extended
    const QString& Message() const { return message_; }

private:
    int code_;
    QString message_;
};

// Throws the SqliteError that stands for the connection's last failure; `doing` says in words what was tried.
[[noreturn]] void ThrowLast(sqlite3* connection, const QString& doing);
// The same for a bare result code, as the file layer gives it.
[[noreturn]] void ThrowCode(int extendedCode, const QString& message, const QString& doing);

}  // namespace store::sqlite
