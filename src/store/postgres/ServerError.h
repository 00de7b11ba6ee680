#pragma once

#include <libpq-fe.h>

#include "store/StoreError.h"

namespace store::postgres {

// A statement that the server refused, with the error's code of five characters (SQLSTATE).
class RefusedStatement : public StoreError {
public:
    RefusedStatement(int number, QString description, QByteArray code)
        : StoreError(number, std::move(description)), code_(std::move(code)) {}
    const QByteArray& Code() const { return code_; }

private:
    QByteArray code_;
};

// Throws what a failed answer stands for.
[[noreturn]] void ThrowRefused(const PGresult* result);
// Whether it tells that the connection is at its end, or the server.
bool TellsOfTheEnd(const PGresult* result);
bool IsCancelled(const PGresult* result);

// The server's or the library's own words, as one sentence.
QString OneSentence(const QString& message);

}  // namespace store::postgres
