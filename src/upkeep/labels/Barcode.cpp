#include "upkeep/labels/Barcode.h"

#include <algorithm>

namespace upkeep {

namespace {

constexpr qsizetype Ean13Digits = 13, Ean8Digits = 8;

bool IsDigits(QStringView text) {
    return !text.isEmpty() && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

}  // namespace

bool EndsWithCheckDigit(QStringView digits) {
    if (!IsDigits(digits)) return false;
    int sum = 0;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        const bool isOdd = (digits.size() - 1 - i) % 2 != 0;
        sum += (digits[i].unicode() - u'0') * (isOdd ? 3 : 1);
    }
    return sum % 10 == 0;
}

Barcode BarcodeOf(const QString& code) {
    const bool mayBeEan = code.size() == Ean13Digits || code.size() == Ean8Digits;
    if (mayBeEan && EndsWithCheckDigit(code)) return code.size() == Ean13Digits ? Barcode::Ean13 : Barcode::Ean8;
    const bool isPrintable = std::ranges::all_of(code, [](QChar c) { return c >= u' ' && c <= u'~'; });
    return isPrintable && !code.trimmed().isEmpty() ? Barcode::Code128 : Barcode::None;
}

}  // namespace upkeep
