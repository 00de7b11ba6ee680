#pragma once

#include <QtGlobal>
#include <compare>

namespace values {

// A fixed-point decimal with four decimals, held as a 64-bit count of ten-thousandths:
// -922 337 203 685 477.5808 to 922 337 203 685 477.5807. Amounts, prices, percents and quantities alike.
// Every result that leaves this range throws Error 6; what has more than four decimals is rounded half to even.
class Money {
public:
    static constexpr qint64 Scale = 10000;

    constexpr Money() = default;

    static constexpr Money FromUnits(qint64 tenThousandths) {
        Money money;
        money.units_ = tenThousandths;
        return money;
    }
    static Money FromWhole(qint64 whole);
    // The double is taken at 15 significant digits first, so that 1.005 means what it says.
    static Money FromDouble(double number);

    constexpr qint64 Units() const { return units_; }
    double ToDouble() const;

    Money operator-() const;
    friend Money operator+(Money a, Money b);
    friend Money operator-(Money a, Money b);
    friend Money operator*(Money a, Money b);
    Money& operator+=(Money other) { return *this = *this + other; }
    Money& operator-=(Money other) { return *this = *this - other; }

    constexpr auto operator<=>(const Money&) const = default;

private:
    qint64 units_ = 0;
};

}  // namespace values
