#pragma once

#include <QStringView>
#include <QVarLengthArray>
#include <optional>

namespace values {

// A decimal number by its digits, between a text or a double on one side and Money or a pattern on the other.
// Its value is 0.d1d2d3... times ten to the power of `point`; first and last digit are never 0, zero has no digits.
struct Decimal {
    bool negative = false;
    qint64 point = 0;
    QVarLengthArray<char, 24> digits;  // '0' to '9'

    // At 15 significant digits; what is not finite throws Error 6.
    static Decimal FromDouble(double number);
    // So many units, each of them ten to the power of -decimals.
    static Decimal FromUnits(qint64 units, int decimals);
    // The whole text as a number in the user's locale, with every digit that it has; see IsNumeric.
    static std::optional<Decimal> Read(QStringView text);
    // Likewise whatever the locale: with a point, without blanks and groups.
    static std::optional<Decimal> ReadPlain(QStringView text);

    bool IsZero() const { return digits.isEmpty(); }
    // The digit that stands for ten to the power of `exponent`.
    char DigitFor(qint64 exponent) const;

    double ToDouble() const;
    // Units of ten to the power of -decimals, half to even; what does not fit throws Error 6.
    qint64 ToUnits(int decimals) const;
    void RoundHalfAway(int decimals);
    void DropTrailingZeros();
};

}  // namespace values
