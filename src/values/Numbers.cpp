#include "values/Numbers.h"

#include <cmath>
#include <limits>

#include "values/Decimal.h"
#include "values/Digits.h"
#include "values/Error.h"
#include "values/NumberForm.h"

namespace values {

namespace {

Decimal ReadNumber(QStringView text) {
    auto decimal = Decimal::Read(text);
    if (!decimal) ThrowTypeMismatch();
    return *std::move(decimal);
}

template <typename Integer>
Integer RoundInto(double number) {
    const double rounded = std::nearbyint(number);
    // Written so that what is not a number fails too.
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        ThrowOverflow();
    return static_cast<Integer>(rounded);
}

qsizetype SkipDigits(QStringView text, qsizetype at) {
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at;
}

bool IsOneOf(QStringView text, qsizetype at, QStringView characters) {
    return at < text.size() && characters.contains(text[at]);
}

// As much of the front of a text as can belong to one number.
QStringView NumberAtFront(QStringView text) {
    qsizetype end = SkipDigits(text, IsOneOf(text, 0, u"+-") ? 1 : 0);
    if (IsOneOf(text, end, u".")) end = SkipDigits(text, end + 1);
    if (!IsOneOf(text, end, u"Ee")) return text.first(end);
    const qsizetype exponent = IsOneOf(text, end + 1, u"+-") ? end + 2 : end + 1;
    const qsizetype exponentEnd = SkipDigits(text, exponent);
    return text.first(exponentEnd > exponent ? exponentEnd : end);
}

}  // namespace

double Val(QStringView text) {
    while (IsOneOf(text, 0, u" \t\r\n")) text = text.sliced(1);
    const auto decimal = Decimal::ReadPlain(NumberAtFront(text));
    return decimal ? decimal->ToDouble() : 0;
}

bool IsNumeric(QStringView text) {
    return Decimal::Read(text).has_value();
}

Money CMoney(QStringView text) {
    return Money::FromUnits(ReadNumber(text).ToUnits(4));
}

double CDouble(QStringView text) {
    return ReadNumber(text).ToDouble();
}

bool CBool(QStringView text) {
    const QStringView word = text.trimmed();
    if (word.compare(u"True", Qt::CaseInsensitive) == 0) return true;
    if (word.compare(u"False", Qt::CaseInsensitive) == 0) return false;
    return !ReadNumber(text).IsZero();
}

qint16 CInt16(double number) {
    return RoundInto<qint16>(number);
}

qint32 CInt32(double number) {
    return RoundInto<qint32>(number);
}

QString NumberText(double number) {
    constexpr double tooManyDigits = 1e15;
    if (number == std::trunc(number) && std::abs(number) < tooManyDigits)
        return QString::number(static_cast<qint64>(number));
    return GeneralText(Decimal::FromDouble(number), WholeDigitsOfDouble);
}

QString NumberText(Money number) {
    return GeneralText(Decimal::FromUnits(number.Units(), 4), WholeDigitsOfExact);
}

QString NumberText(qint64 number) {
    return QString::number(number);
}

}  // namespace values
