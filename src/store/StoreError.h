#pragma once

#include <QStringList>

#include "values/Error.h"

namespace store {

// The error numbers of the store; screens compare some of them (3022, 3200, 3356), people look the others up.
enum ErrorNumber : int {
    NoEditPending = 3020,  // Update or a field write without AddNew or Edit
    NoCurrentRow = 3021,
    DuplicateKey = 3022,
    FileNotFound = 3024,
    DiskFull = 3026,
    ReadOnly = 3027,        // a join, an aggregate, a store on read-only ground
    DiskError = 3043,       // the disk or the network refused to read or write
    IniNotReadable = 3051,  // a store.ini that does not say where the main store lies
    Cancelled = 3059,       // the user did not want to wait
    UnknownField = 3061,
    SyntaxError = 3075,
    UnknownTable = 3078,
    AmbiguousName = 3079,
    NotInAggregate = 3122,  // a column that is neither grouped nor inside an aggregate
    RowDeleted = 3167,
    RowChanged = 3197,
    RelatedRows = 3200,
    FileExists = 3204,
    StoreLocked = 3218,  // another writer holds the store for longer than we wait
    NotSupported = 3251,
    TableLocked = 3260,
    ItemNotFound = 3265,  // a field name or position that the cursor does not have
    NotAStore = 3343,     // foreign, damaged, empty, or of a newer version
    HeldExclusively = 3356,
    ConversionFailed = 3421,
};

class StoreError : public values::Error {
public:
    using values::Error::Error;
    // Whoever would try again until it goes well must not: it is in vain, or wrong.
    virtual bool ForbidsRetry() const { return false; }
};

// What an engine that refused a statement says of it, without a full stop.
QString Refusal(int number);

// The files of an open store were deleted, moved away or replaced. What the connection had stored is saved beside the
// store when that is possible, and the description names the copy; nothing is written any more.
class FilesLost : public StoreError {
public:
    explicit FilesLost(QString description) : StoreError(DiskError, std::move(description)) {}
    bool ForbidsRetry() const override { return true; }
};

// The server of a store cannot be reached or was lost on the way; the next call tries to reach it again. A write that
// was under way may have been stored or not, and nobody knows.
class ServerLost : public StoreError {
public:
    enum class Write { None, UnderWay };
    explicit ServerLost(QString description, Write write = Write::None)
        : StoreError(DiskError, std::move(description)), write_(write) {}
    bool ForbidsRetry() const override { return true; }
    bool MayHaveStored() const { return write_ == Write::UnderWay; }

private:
    Write write_;
};

// A place in a query text, in UTF-16 units from its start.
struct Span {
    int offset = 0;
    int length = 0;
};

// An error in a query text. Description() is one line; Rendered() adds the line of the query and a caret under the
// span.
class QueryError : public StoreError {
public:
    QueryError(int number, Span span, QString message, QString queryText, QStringList near = {});

    // Known names close to an unknown one, best first; may be empty.
    const QStringList& NearNames() const { return near_; }
    QString Rendered() const;

private:
    Span span_;
    QString queryText_;
    QStringList near_;
};

}  // namespace store
