#pragma once

#include <QByteArrayView>
#include <vector>

namespace store {

// The pattern of a LIKE: `*` any run, `?` one character, `#` one digit, `[a-z]` one of a set, `[!a-z]` one outside it;
// everything else, a `[` without its `]` too, means itself. Case is folded as everywhere in the stores. Texts are
// UTF-8.
class LikePattern {
public:
    explicit LikePattern(QByteArrayView pattern);

    bool Matches(QByteArrayView text) const;

private:
    struct Range {
        char32_t first;
        char32_t last;
    };
    struct Piece {
        enum class Kind { Literal, AnyRun, AnyOne, Digit, Set, Outside };
        Kind kind;
        char32_t literal = 0;
        std::vector<Range> ranges = {};

        bool Meets(char32_t codePoint, char32_t folded) const;
        QByteArrayView FromFirst(QByteArrayView text) const;
    };

    bool AddSet(QByteArrayView& pattern);

    std::vector<Piece> pieces_;
};

}  // namespace store
