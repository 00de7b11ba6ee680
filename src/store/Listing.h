#pragma once

#include <QStringView>
#include <chrono>
#include <memory>

#include "values/Value.h"

namespace store {

class RowBlock;

// The rows of a query as they were at one moment, kept in memory for a list that shows them: read in any order, never
// changed. Those of Database::OpenListing come in beside the program's own work, from the first question on, read by a
// thread on a connection of its own; a listing that is dropped stops it.
class Listing {
public:
    static constexpr std::chrono::milliseconds Forever = std::chrono::hours(24);

    Listing();  // without rows
    Listing(Listing&&) noexcept;
    Listing& operator=(Listing&&) noexcept;
    ~Listing();

    // The position of a column, from 0; 3265 for a name that the query does not have.
    int Column(QStringView name) const;

    // Waits until there are so many rows, or all there are, but no longer than this once the moment is taken. Gives
    // the number of those that are here; throws what stopped the reading.
    qint64 WaitFor(qint64 rows, std::chrono::milliseconds atMost = Forever);
    // Whether all rows are here.
    bool IsWhole() const;
    // A field of a row that is here.
    values::Value At(qint64 row, int column) const;

private:
    friend class Database;
    friend class Recordset;
    struct Impl;
    explicit Listing(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

}  // namespace store
