#include "store/KeysetRows.h"

#include <algorithm>

namespace store {

namespace {

constexpr int FirstReadAhead = 16;
constexpr int LongestReadAhead = 256;
// So many rows come with their data when a query with a condition or an order is opened.
constexpr int OpeningRows = 1024;

}  // namespace

KeysetRows::KeysetRows(Engine& engine, const dialect::Query& query)
    : engine_(engine),
      query_(query),
      isInRowOrder_(!query.plan->where && query.plan->order.empty()),
      readAhead_(FirstReadAhead) {
    if (!isInRowOrder_) {
        stamp_ = engine_.Now();
        engine_.ReadKeyset(query_, OpeningRows, base_, window_);
        isJustRead_ = true;
        return;
    }
    upTo_ = engine_.LastRow(*query_.plan->table);
    isComplete_ = upTo_ == 0;
    if (isComplete_) window_.Clear(static_cast<int>(query_.plan->output.size()));
    LearnMore();
}

size_t KeysetRows::Index(Place place) const {
    return static_cast<size_t>(place >= FirstAdded ? place - FirstAdded : place);
}

bool KeysetRows::Knows(Place place) const {
    return Index(place) < (place >= FirstAdded ? added_ : base_).size();
}

qint64 KeysetRows::RowAt(Place place) const {
    return (place >= FirstAdded ? added_ : base_)[Index(place)];
}

CursorRows::Place KeysetRows::First() {
    if (base_.empty()) LearnMore();
    if (!base_.empty()) return 0;
    return added_.empty() ? Nowhere : FirstAdded;
}

CursorRows::Place KeysetRows::Last() {
    LearnUpTo(upTo_);
    if (!added_.empty()) return FirstAdded + static_cast<Place>(added_.size()) - 1;
    return static_cast<Place>(base_.size()) - 1;
}

CursorRows::Place KeysetRows::Next(Place place) {
    const Place next = place + 1;
    if (Knows(next)) return next;
    if (place >= FirstAdded) return Nowhere;
    LearnMore();
    if (Knows(next)) return next;
    return added_.empty() ? Nowhere : FirstAdded;
}

CursorRows::Place KeysetRows::Previous(Place place) {
    if (place != FirstAdded) return place - 1;
    LearnUpTo(upTo_);
    return static_cast<Place>(base_.size()) - 1;
}

CursorRows::Place KeysetRows::Find(qint64 row, Place likely) {
    if (likely != Nowhere && Knows(likely) && RowAt(likely) == row) return likely;
    const auto added = std::find(added_.rbegin(), added_.rend(), row);
    if (added != added_.rend()) return FirstAdded + (added_.rend() - added) - 1;
    return FirstOf({row});
}

CursorRows::Place KeysetRows::FirstOf(const std::vector<qint64>& rows) {
    if (rows.empty()) return Nowhere;
    if (isInRowOrder_) {
        for (const qint64 row : rows) {
            if (row > upTo_) break;
            LearnUpTo(row);
            const auto found = std::ranges::lower_bound(base_, row);
            if (found != base_.end() && *found == row) return found - base_.begin();
        }
    }
    const auto isWanted = [&rows](qint64 row) { return std::ranges::binary_search(rows, row); };
    if (!isInRowOrder_) {
        const auto found = std::ranges::find_if(base_, isWanted);
        if (found != base_.end()) return found - base_.begin();
    }
    const auto found = std::ranges::find_if(added_, isWanted);
    return found == added_.end() ? Nowhere : FirstAdded + (found - added_.begin());
}

void KeysetRows::Remove(Place place) {
    auto& rows = place >= FirstAdded ? added_ : base_;
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(Index(place)));
    stamp_ = Stamp::Unknown;
}

CursorRows::Data KeysetRows::Confirm(Place place) {
    const Stamp now = engine_.Now();
    RowBlock fresh;
    if (!Read(RowAt(place), fresh)) {
        window_ = std::move(fresh);
        windowStart_ = place;
        stamp_ = now;
    }
    confirmed_ = now;
    return {&window_, static_cast<int>(place - windowStart_)};
}

bool KeysetRows::Read(qint64 row, RowBlock& data) {
    engine_.ReadRows(query_, std::span(&row, 1), data);
    return !data.Gone(0);
}

// The next rows in order become known, and become the window by the way.
void KeysetRows::LearnMore() {
    if (isComplete_) return;
    const size_t known = base_.size();
    const qint64 after = base_.empty() ? 0 : base_.back();
    stamp_ = engine_.Now();
    windowStart_ = static_cast<Place>(known);
    engine_.ReadAfter(query_, after, upTo_, readAhead_, base_, window_);
    isJustRead_ = true;
    isComplete_ = static_cast<int>(base_.size() - known) < readAhead_;
    readAhead_ = std::min(readAhead_ * 2, LongestReadAhead);
}

// Identities alone, for moves across many rows at once.
void KeysetRows::LearnUpTo(qint64 row) {
    const qint64 last = base_.empty() ? 0 : base_.back();
    if (isComplete_ || row <= last) return;
    engine_.ReadKeys(*query_.plan->table, last, row, base_);
    isComplete_ = row >= upTo_;
}

bool KeysetRows::InWindow(Place place) const {
    return place >= windowStart_ && place < windowStart_ + window_.Rows();
}

CursorRows::Data KeysetRows::Load(Place place) {
    const bool isCurrent = std::exchange(isJustRead_, false) || engine_.StillAt(stamp_);
    confirmed_ = Stamp::Unknown;
    if (!isCurrent || !InWindow(place)) {
        // While others commit between the moves, rows read ahead would be read in vain.
        readAhead_ = isCurrent ? std::min(readAhead_ * 2, LongestReadAhead) : 1;
        FillWindow(place);
    }
    return {&window_, static_cast<int>(place - windowStart_)};
}

RowBlock KeysetRows::ReadNow() {
    LearnUpTo(upTo_);
    std::vector<qint64> all = base_;
    all.insert(all.end(), added_.begin(), added_.end());
    RowBlock rows;
    engine_.ReadRows(query_, all, rows);
    rows.DropGone();
    return rows;
}

void KeysetRows::FillWindow(Place place) {
    const std::vector<qint64>& rows = place >= FirstAdded ? added_ : base_;
    const size_t length = static_cast<size_t>(readAhead_);
    const bool isBackward = place < windowStart_;
    size_t first = Index(place);
    size_t last = std::min(first + length, rows.size());
    if (isBackward) {
        last = first + 1;
        first = last - std::min(last, length);
    }
    stamp_ = engine_.Now();
    windowStart_ = place - static_cast<Place>(Index(place) - first);
    engine_.ReadRows(query_, std::span(rows).subspan(first, last - first), window_);
}

}  // namespace store
