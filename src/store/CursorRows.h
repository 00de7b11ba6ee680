#pragma once

#include "store/Engine.h"

namespace store {

// The rows of a cursor: which there are and in which order, and the data of each.
class CursorRows {
public:
    // A row's place in the cursor; Nowhere when there is no such row.
    using Place = qint64;
    static constexpr Place Nowhere = -1;

    virtual ~CursorRows() = default;

    virtual Place First() = 0;
    virtual Place Last() = 0;
    virtual Place Next(Place place) = 0;
    virtual Place Previous(Place place) = 0;
    virtual qint64 KnownCount() const = 0;

    // The identity of a row in this cursor, and the way back.
    virtual qint64 RowAt(Place place) const = 0;
    virtual Place Find(qint64 row, Place likely) = 0;

    // Puts the row's data, read after the last commit by anybody, into `rows` (owned by this, until the next call).
    struct Data {
        const RowBlock* rows = nullptr;
        int index = 0;
    };
    virtual Data Load(Place place) = 0;

    // All rows as they are at one moment; those that are gone are left out.
    virtual RowBlock ReadNow() = 0;
};

// All rows are taken at opening: of a join or an aggregate, or because they are only to be read.
class SnapshotRows final : public CursorRows {
public:
    explicit SnapshotRows(RowBlock rows) : rows_(std::move(rows)) {}

    Place First() override { return rows_.Rows() > 0 ? 0 : Nowhere; }
    Place Last() override { return rows_.Rows() - 1; }
    Place Next(Place place) override { return place + 1 < rows_.Rows() ? place + 1 : Nowhere; }
    Place Previous(Place place) override { return place - 1; }
    qint64 KnownCount() const override { return rows_.Rows(); }
    qint64 RowAt(Place place) const override { return place + 1; }
    Place Find(qint64 row, Place) override { return row >= 1 && row <= rows_.Rows() ? row - 1 : Nowhere; }
    Data Load(Place place) override { return {&rows_, static_cast<int>(place)}; }
    RowBlock ReadNow() override { return rows_; }

private:
    RowBlock rows_;
};

}  // namespace store
