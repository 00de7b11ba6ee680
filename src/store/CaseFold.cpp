#include "store/CaseFold.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace store {

namespace {

struct FoldRange {
    char32_t first;
    char32_t last;
    quint32 step;
    qint32 distance;
};

constexpr FoldRange FoldRanges[] = {
#include "store/CaseFold.inc"
};

constexpr char32_t FoldByRange(char32_t codePoint) {
    const auto* range = std::ranges::lower_bound(FoldRanges, codePoint, {}, &FoldRange::last);
    if (range == std::end(FoldRanges) || codePoint < range->first) return codePoint;
    if ((codePoint - range->first) % range->step != 0) return codePoint;
    return static_cast<char32_t>(static_cast<qint32>(codePoint) + range->distance);
}

// Latin letters are nearly all there is; they are looked up directly.
constexpr auto LatinFolds = [] {
    std::array<char16_t, 0x250> folds{};
    for (char32_t i = 0; i < folds.size(); ++i) folds[i] = static_cast<char16_t>(FoldByRange(i));
    return folds;
}();

constexpr bool IsAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

constexpr char16_t FoldAscii(char byte) {
    return LatinFolds[static_cast<unsigned char>(byte)];
}

bool IsInsideCharacter(QByteArrayView text, qsizetype at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
}

// Of what both begin with, byte for byte, as much as is quickly seen; both go on with a whole character. Sorted texts
// have long beginnings in common.
qsizetype LengthAlike(QByteArrayView a, QByteArrayView b) {
    constexpr qsizetype step = 8;
    const qsizetype common = std::min(a.size(), b.size());
    qsizetype length = 0;
    while (length + step <= common && std::memcmp(a.data() + length, b.data() + length, step) == 0) length += step;
    while (length > 0 && (IsInsideCharacter(a, length) || IsInsideCharacter(b, length))) --length;
    return length;
}

}  // namespace

char32_t FoldCase(char32_t codePoint) {
    return codePoint < LatinFolds.size() ? LatinFolds[codePoint] : FoldByRange(codePoint);
}

char32_t TakeCodePoint(QByteArrayView& text) {
    constexpr char32_t broken = 0xFFFD;
    const auto byteAt = [&text](qsizetype i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byteAt(0);
    const int length = lead < 0x80 ? 1 : lead >= 0xF0 && lead < 0xF8 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
    if (length == 0 || lead >= 0xF8 || text.size() < length) {
        text = text.sliced(1);
        return broken;
    }
    char32_t codePoint = length == 1 ? lead : lead & (0x7Fu >> length);
    for (int i = 1; i < length; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80) {
            text = text.sliced(i);
            return broken;
        }
        codePoint = (codePoint << 6) | (byteAt(i) & 0x3Fu);
    }
    text = text.sliced(length);
    return codePoint;
}

QByteArrayView FromFolded(QByteArrayView text, char32_t folded) {
    const auto mayBeIt = [folded](char byte) { return !IsAscii(byte) || FoldAscii(byte) == folded; };
    while (!text.empty()) {
        text = text.sliced(std::find_if(text.begin(), text.end(), mayBeIt) - text.begin());
        if (text.empty() || IsAscii(text[0])) break;

        QByteArrayView behind = text;
        if (FoldCase(TakeCodePoint(behind)) == folded) break;
        text = behind;
    }
    return text;
}

int CompareFolded(QByteArrayView a, QByteArrayView b) {
    const qsizetype alike = LengthAlike(a, b);
    a = a.sliced(alike);
    b = b.sliced(alike);
    while (!a.empty() && !b.empty()) {
        const qsizetype common = std::min(a.size(), b.size());
        qsizetype i = 0;
        for (; i < common && IsAscii(a[i]) && IsAscii(b[i]); ++i) {
            const int difference = FoldAscii(a[i]) - FoldAscii(b[i]);
            if (difference != 0) return difference;
        }
        a = a.sliced(i);
        b = b.sliced(i);
        if (a.empty() || b.empty()) break;

        const char32_t left = FoldCase(TakeCodePoint(a));
        const char32_t right = FoldCase(TakeCodePoint(b));
        if (left != right) return left < right ? -1 : 1;
    }
    return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

QByteArray FoldedText(QByteArrayView text) {
    QByteArray folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        if (IsAscii(text[0])) {
            folded += static_cast<char>(FoldAscii(text[0]));
            text = text.sliced(1);
        } else {
            const char32_t letter = FoldCase(TakeCodePoint(text));
            folded += QString::fromUcs4(&letter, 1).toUtf8();
        }
    }
    return folded;
}

bool SameText(const QString& a, const QString& b) {
    return CompareFolded(a.toUtf8(), b.toUtf8()) == 0;
}

}  // namespace store
