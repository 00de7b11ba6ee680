#include "store/sqlite/SqliteError.h"

#include <sqlite3.h>

#include <cerrno>

#include "store/Words.h"

namespace store::sqlite {

namespace {

// Errors without a code of their own are told apart by the engine's fixed words.
int NumberOfPlainError(const QString& message) {
    if (message.contains(u"integer overflow")) return values::Overflow;
    return NotSupported;
}

int NumberOfConstraint(int extendedCode) {
    switch (extendedCode) {
        case SQLITE_CONSTRAINT_DATATYPE:
            return ConversionFailed;
        // The program keeps relations by itself; a shop may have added its own to the store.
        case SQLITE_CONSTRAINT_FOREIGNKEY:
        case SQLITE_CONSTRAINT_TRIGGER:
            return RelatedRows;
        default:
            return DuplicateKey;
    }
}

int NumberOf(int extendedCode, const QString& message) {
    switch (extendedCode & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
        case SQLITE_PROTOCOL:
            return StoreLocked;
        case SQLITE_INTERRUPT:
            return Cancelled;
        case SQLITE_CONSTRAINT:
            return NumberOfConstraint(extendedCode);
        case SQLITE_MISMATCH:
            return ConversionFailed;
        case SQLITE_FULL:
            return DiskFull;
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return NotAStore;
        case SQLITE_READONLY:
        case SQLITE_PERM:
            return ReadOnly;
        case SQLITE_IOERR:
        case SQLITE_CANTOPEN:
            return DiskError;
        default:
            return NumberOfPlainError(message);
    }
}

// A full disk, where the engine only speaks of a refused access, as it does of the files that it makes for itself.
int CodeWithoutRoom(sqlite3* connection, int extendedCode) {
    const int system = sqlite3_system_errno(connection);
    const bool isFull = system == ENOSPC || system == EDQUOT;
    return isFull && (extendedCode & 0xFF) == SQLITE_IOERR ? SQLITE_FULL : extendedCode;
}

}  // namespace

void ThrowCode(int extendedCode, const QString& message, const QString& doing) {
    const int number = NumberOf(extendedCode, message);
    //: what was refused, what was being done, and the engine's own words: "The store is damaged, opening x (y)."
    throw SqliteError(number, Words::tr("%1, %2 (%3).").arg(Refusal(number), doing, message), extendedCode, message);
}

void ThrowLast(sqlite3* connection, const QString& doing) {
    ThrowCode(CodeWithoutRoom(connection, sqlite3_extended_errcode(connection)),
              QString::fromUtf8(sqlite3_errmsg(connection)), doing);
}

}  // namespace store::sqlite
