#include "values/Money.h"

#include <limits>

#include "values/Decimal.h"
#include "values/Error.h"

namespace values {

Money Money::FromWhole(qint64 whole) {
    qint64 units = 0;
    if (__builtin_mul_overflow(whole, Scale, &units)) ThrowOverflow();
    return FromUnits(units);
}

Money Money::FromDouble(double number) {
    return FromUnits(Decimal::FromDouble(number).ToUnits(4));
}

double Money::ToDouble() const {
    return static_cast<double>(units_) / Scale;
}

Money Money::operator-() const {
    return Money() - *this;
}

Money operator+(Money a, Money b) {
    qint64 units = 0;
    if (__builtin_add_overflow(a.units_, b.units_, &units)) ThrowOverflow();
    return Money::FromUnits(units);
}

Money operator-(Money a, Money b) {
    qint64 units = 0;
    if (__builtin_sub_overflow(a.units_, b.units_, &units)) ThrowOverflow();
    return Money::FromUnits(units);
}

Money operator*(Money a, Money b) {
    const __int128 product = static_cast<__int128>(a.units_) * b.units_;
    __int128 units = product / Money::Scale;
    const auto rest = static_cast<qint64>(product % Money::Scale);
    const qint64 distance = rest < 0 ? -rest : rest;
    constexpr qint64 half = Money::Scale / 2;
    if (distance > half || (distance == half && units % 2 != 0)) units += rest < 0 ? -1 : 1;
    if (units > std::numeric_limits<qint64>::max() || units < std::numeric_limits<qint64>::min()) ThrowOverflow();
    return Money::FromUnits(static_cast<qint64>(units));
}

}  // namespace values
