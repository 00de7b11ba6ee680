#pragma once

#include "store/CursorRows.h"

namespace store {

// The rows of one table, remembered by their identities.
//
// A query without condition and order has all rows up to the highest identity at opening, in the order of identities;
// they are learnt as the cursor moves, so that opening costs the same for every table. Otherwise all identities are
// taken at opening. Rows that the cursor itself added stand behind them. Row data is read in windows, ahead of the
// moves, and used for as long as nothing was committed since.
class KeysetRows final : public CursorRows {
public:
    KeysetRows(Engine& engine, const dialect::Query& query);

    Place First() override;
    Place Last() override;
    Place Next(Place place) override;
    Place Previous(Place place) override;
    qint64 KnownCount() const override { return std::ssize(base_) + std::ssize(added_); }
    qint64 RowAt(Place place) const override;
    Place Find(qint64 row, Place likely) override;
    Data Load(Place place) override;
    RowBlock ReadNow() override;
    // Whether the row that Load gave is known to be in the store still.
    bool StillThere() { return engine_.StillAt(stamp_) || engine_.StillAt(confirmed_); }

    // The first row of the cursor that is one of these (rising) identities.
    Place FirstOf(const std::vector<qint64>& rows);
    void Add(qint64 row) { added_.push_back(row); }
    // Takes a row out; the place then belongs to its successor.
    void Remove(Place place);
    // The data that Load gave stays, unless the row is gone meanwhile.
    Data Confirm(Place place);
    // The row as it is in the store now; false when it is gone.
    bool Read(qint64 row, RowBlock& data);

private:
    // Added rows have places from here on.
    static constexpr Place FirstAdded = Place{1} << 48;

    bool Knows(Place place) const;
    void LearnMore();
    void LearnUpTo(qint64 row);
    bool InWindow(Place place) const;
    void FillWindow(Place place);
    size_t Index(Place place) const;

    Engine& engine_;
    const dialect::Query& query_;
    std::vector<qint64> base_;
    std::vector<qint64> added_;
    bool isInRowOrder_;
    bool isComplete_ = true;  // all of base_ is known
    qint64 upTo_ = 0;         // the highest row of base_, in row order

    RowBlock window_;
    Place windowStart_ = 0;
    Stamp stamp_ = Stamp::Unknown;      // when the window was read
    Stamp confirmed_ = Stamp::Unknown;  // when the last loaded row was found to be there still
    bool isJustRead_ = false;           // the window, by the move that is under way
    int readAhead_;
};

}  // namespace store
