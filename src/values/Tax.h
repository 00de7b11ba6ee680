#pragma once

#include "values/Money.h"

namespace values {

// The tax that a price contains: price - price / (1 + percent / 100). The quotient is a double, rounded to money before
// the subtraction.
Money ContainedTax(Money price, double percent);

// The price less its tax: the quotient of both as money, in double precision. Error 11 at minus 100 percent.
double PriceWithoutTax(Money price, double percent);

}  // namespace values
