#include "values/Decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "values/Digits.h"
#include "values/Error.h"
#include "values/LocaleTexts.h"

namespace values {

namespace {

constexpr int SignificantDigits = 15;
constexpr double TooManyDigits = 1e15;
constexpr qint64 LargestExponent = 1'000'000'000;

char ToDigit(QChar c) {
    return static_cast<char>(c.unicode());
}

bool IsSign(QChar c) {
    return c == u'+' || c == u'-';
}

// Takes the parts of a number off the front of a text into a decimal; a part that is wrong gives false.
class NumberReader {
public:
    NumberReader(QStringView text, Decimal& decimal) : rest_(text), decimal_(decimal) {}

    bool AtEnd() const { return rest_.isEmpty(); }
    bool AnyDigit() const { return anyDigit_; }

    void Sign() {
        decimal_.negative = !AtEnd() && Next() == u'-';
        if (!AtEnd() && IsSign(Next())) Skip();
    }

    template <typename IsGroupSeparator>
    bool Whole(IsGroupSeparator isGroupSeparator) {
        // A leading 0 before a group is a mistyped decimal separator, not a number.
        const bool mayGroup = !AtEnd() && Next() != u'0';
        bool grouped = false;
        int inGroup = 0;
        for (; !AtEnd(); Skip()) {
            if (IsDigit(Next())) {
                ++inGroup;
                WholeDigit(ToDigit(Next()));
            } else if (isGroupSeparator(Next())) {
                const bool full = grouped ? inGroup == 3 : mayGroup && inGroup >= 1 && inGroup <= 3;
                if (!full) return false;
                grouped = true;
                inGroup = 0;
            } else {
                break;
            }
        }
        return !grouped || inGroup == 3;
    }

    void Decimals(QChar separator) {
        if (AtEnd() || Next() != separator) return;
        for (Skip(); !AtEnd() && IsDigit(Next()); Skip()) {
            anyDigit_ = true;
            if (Next() == u'0' && decimal_.IsZero())
                --decimal_.point;
            else
                decimal_.digits.append(ToDigit(Next()));
        }
    }

    bool Exponent() {
        if (AtEnd()) return true;
        if (Next().toLower() != u'e') return false;
        Skip();
        const bool negative = !AtEnd() && Next() == u'-';
        if (!AtEnd() && IsSign(Next())) Skip();
        if (AtEnd()) return false;
        qint64 exponent = 0;
        for (; !AtEnd() && IsDigit(Next()); Skip())
            exponent = std::min(exponent * 10 + (ToDigit(Next()) - '0'), LargestExponent);
        decimal_.point += negative ? -exponent : exponent;
        return AtEnd();
    }

private:
    QChar Next() const { return rest_.front(); }
    void Skip() { rest_ = rest_.sliced(1); }

    void WholeDigit(char digit) {
        anyDigit_ = true;
        if (digit == '0' && decimal_.IsZero()) return;
        decimal_.digits.append(digit);
        ++decimal_.point;
    }

    QStringView rest_;
    Decimal& decimal_;
    bool anyDigit_ = false;
};

template <typename IsGroupSeparator>
std::optional<Decimal> ReadNumber(QStringView text, QChar separator, IsGroupSeparator isGroupSeparator) {
    std::optional<Decimal> decimal(std::in_place);
    NumberReader reader(text, *decimal);
    reader.Sign();
    if (!reader.Whole(isGroupSeparator)) return std::nullopt;
    reader.Decimals(separator);
    if (!reader.AnyDigit() || !reader.Exponent()) return std::nullopt;
    decimal->DropTrailingZeros();
    return decimal;
}

}  // namespace

void Decimal::DropTrailingZeros() {
    while (!digits.isEmpty() && digits.back() == '0') digits.removeLast();
    if (digits.isEmpty()) point = 0;
}

Decimal Decimal::FromDouble(double number) {
    if (!std::isfinite(number)) ThrowOverflow();
    Decimal decimal;
    if (number == 0) return decimal;
    // Most are money: the double next to so many units has no other text of 15 digits than theirs.
    const double units = std::nearbyint(number * 10'000);
    if (std::abs(units) < TooManyDigits && units / 10'000 == number) return FromUnits(static_cast<qint64>(units), 4);
    char text[SignificantDigits + 8];
    const auto end = std::to_chars(std::begin(text), std::end(text), std::abs(number), std::chars_format::scientific,
                                   SignificantDigits - 1)
                         .ptr;
    decimal.negative = number < 0;
    decimal.digits.append(text[0]);
    decimal.digits.append(text + 2, SignificantDigits - 1);
    const char* exponentText = text + SignificantDigits + 2;
    if (*exponentText == '+') ++exponentText;
    int exponent = 0;
    std::from_chars(exponentText, end, exponent);
    decimal.point = exponent + 1;
    decimal.DropTrailingZeros();
    return decimal;
}

Decimal Decimal::FromUnits(qint64 units, int decimals) {
    Decimal decimal;
    if (units == 0) return decimal;
    decimal.negative = units < 0;
    const quint64 magnitude = units < 0 ? 0 - static_cast<quint64>(units) : static_cast<quint64>(units);
    char text[20];
    const auto end = std::to_chars(std::begin(text), std::end(text), magnitude).ptr;
    decimal.digits.append(text, static_cast<int>(end - text));
    decimal.point = decimal.digits.size() - decimals;
    decimal.DropTrailingZeros();
    return decimal;
}

std::optional<Decimal> Decimal::Read(QStringView text) {
    const LocaleTexts& locale = UserTexts();
    return ReadNumber(text.trimmed(), locale.decimalSeparator, [&](QChar c) { return locale.IsGroupSeparator(c); });
}

std::optional<Decimal> Decimal::ReadPlain(QStringView text) {
    return ReadNumber(text, u'.', [](QChar) { return false; });
}

char Decimal::DigitFor(qint64 exponent) const {
    const qint64 index = point - 1 - exponent;
    return index >= 0 && index < digits.size() ? digits[index] : '0';
}

double Decimal::ToDouble() const {
    if (IsZero()) return 0;
    QVarLengthArray<char, 64> text;
    if (negative) text.append('-');
    text.append("0.", 2);
    text.append(digits.data(), digits.size());
    text.append('e');
    char exponent[24];
    text.append(exponent, std::to_chars(std::begin(exponent), std::end(exponent), point).ptr - exponent);
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec == std::errc{}) return number;
    // Out of range: too small counts as nothing, too large is an error.
    if (point > 0) ThrowOverflow();
    return 0;
}

qint64 Decimal::ToUnits(int decimals) const {
    constexpr qint64 mostDigits = std::numeric_limits<qint64>::digits10 + 1;
    const qint64 kept = point + decimals;
    if (IsZero() || kept < 0) return 0;
    if (kept > mostDigits) ThrowOverflow();
    quint64 magnitude = 0;
    for (qint64 i = 0; i < kept; ++i)
        magnitude = magnitude * 10 + static_cast<quint64>(i < digits.size() ? digits[i] - '0' : 0);
    if (kept < digits.size()) {
        const bool pastHalf = digits[kept] > '5' || (digits[kept] == '5' && kept + 1 < digits.size());
        const bool half = digits[kept] == '5' && kept + 1 == digits.size();
        if (pastHalf || (half && magnitude % 2 == 1)) ++magnitude;
    }
    constexpr auto largest = static_cast<quint64>(std::numeric_limits<qint64>::max());
    if (magnitude > largest + (negative ? 1 : 0)) ThrowOverflow();
    return static_cast<qint64>(negative ? 0 - magnitude : magnitude);
}

void Decimal::RoundHalfAway(int decimals) {
    const qint64 kept = point + decimals;
    if (kept >= digits.size()) return;
    if (kept < 0) {
        digits.clear();
        point = 0;
        return;
    }
    const bool up = digits[kept] >= '5';
    digits.resize(kept);
    if (!up) return DropTrailingZeros();
    while (!digits.isEmpty() && digits.back() == '9') digits.removeLast();
    if (!digits.isEmpty()) {
        ++digits.back();
    } else {
        digits.append('1');
        ++point;
    }
}

}  // namespace values
