#pragma once

#include <libpq-fe.h>

#include "store/StoreError.h"

namespace store::postgres {

// Throws what a statement stands for that the server refused, by its code of five characters (SQLSTATE): a StoreError,
// FilesLost when the tables are gone.
[[noreturn]] void ThrowRefused(const PGresult* result);
// Whether it tells that the connection is at its end, or the server.
bool TellsOfTheEnd(const PGresult* result);
bool IsCancelled(const PGresult* result);

// The server's or the library's own words, as one sentence.
QString OneSentence(const QString& message);

}  // namespace store::postgres
