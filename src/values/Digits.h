#pragma once

#include <QString>
#include <charconv>
#include <iterator>

namespace values {

// Only the ten ASCII digits count, whatever digits a locale writes.
inline bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

inline void AddPadded(QString& text, int number, int width) {
    char digits[12];
    const auto length = std::to_chars(std::begin(digits), std::end(digits), number).ptr - digits;
    for (auto missing = width - length; missing > 0; --missing) text += u'0';
    text += QLatin1StringView(digits, length);
}

}  // namespace values
