#include "store/LikePattern.h"

#include <algorithm>

#include "store/CaseFold.h"

namespace store {

LikePattern::LikePattern(QByteArrayView pattern) {
    using Kind = Piece::Kind;
    while (!pattern.empty()) {
        const char32_t codePoint = TakeCodePoint(pattern);
        if (codePoint == U'[' && AddSet(pattern)) continue;
        if (codePoint != U'*')
            pieces_.push_back({codePoint == U'?'   ? Kind::AnyOne
                               : codePoint == U'#' ? Kind::Digit
                                                   : Kind::Literal,
                               FoldCase(codePoint)});
        else if (pieces_.empty() || pieces_.back().kind != Kind::AnyRun)
            pieces_.push_back({Kind::AnyRun});
    }
}

// Reads a set up to its closing bracket; without one nothing is taken.
bool LikePattern::AddSet(QByteArrayView& pattern) {
    const qsizetype end = pattern.indexOf(']');
    if (end < 0) return false;
    QByteArrayView inside = pattern.first(end);
    pattern = pattern.sliced(end + 1);
    if (inside.empty()) return true;

    Piece piece{Piece::Kind::Set};
    if (inside.front() == '!' && inside.size() > 1) {
        piece.kind = Piece::Kind::Outside;
        inside = inside.sliced(1);
    }
    while (!inside.empty()) {
        const char32_t first = FoldCase(TakeCodePoint(inside));
        char32_t last = first;
        if (inside.size() > 1 && inside.front() == '-') {
            inside = inside.sliced(1);
            last = FoldCase(TakeCodePoint(inside));
        }
        piece.ranges.push_back({first, last});
    }
    pieces_.push_back(std::move(piece));
    return true;
}

bool LikePattern::Piece::Meets(char32_t codePoint, char32_t folded) const {
    const auto inRange = [folded](const Range& range) { return range.first <= folded && folded <= range.last; };
    switch (kind) {
        case Kind::Literal:
            return folded == literal;
        case Kind::Digit:
            return codePoint >= U'0' && codePoint <= U'9';
        case Kind::Set:
            return std::ranges::any_of(ranges, inRange);
        case Kind::Outside:
            return std::ranges::none_of(ranges, inRange);
        case Kind::AnyOne:
        case Kind::AnyRun:
            break;
    }
    return true;
}

// Only the last `*` seen has to be tried again with a longer run, so no text makes this worse than quadratic.
bool LikePattern::Matches(QByteArrayView text) const {
    size_t at = 0;
    size_t afterRun = 0;
    QByteArrayView runEnd;
    while (true) {
        if (at < pieces_.size() && pieces_[at].kind == Piece::Kind::AnyRun) {
            if (++at == pieces_.size()) return true;
            afterRun = at;
            runEnd = text = pieces_[at].FromFirst(text);
        }
        if (text.empty()) return at == pieces_.size();

        const char32_t codePoint = TakeCodePoint(text);
        if (at < pieces_.size() && pieces_[at].Meets(codePoint, FoldCase(codePoint))) {
            ++at;
            continue;
        }
        if (afterRun == 0) return false;
        TakeCodePoint(runEnd);
        runEnd = text = pieces_[afterRun].FromFirst(runEnd);
        at = afterRun;
    }
}

// The first character that may be this piece is found without trying each on the way.
QByteArrayView LikePattern::Piece::FromFirst(QByteArrayView text) const {
    return kind == Kind::Literal ? FromFolded(text, literal) : text;
}

}  // namespace store
