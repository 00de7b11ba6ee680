#pragma once

#include <QString>

namespace values {

// Only the ten ASCII digits count, whatever digits a locale writes.
inline bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

inline void AddPadded(QString& text, int number, int width) {
    const QString digits = QString::number(number);
    for (auto missing = width - digits.size(); missing > 0; --missing) text += u'0';
    text += digits;
}

}  // namespace values
