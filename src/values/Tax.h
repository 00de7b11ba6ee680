#pragma once

#include "values/Money.h"

namespace values {

// The tax that a price contains: price - price / (1 + percent / 100). The quotient is a double, rounded to money before
// the subtraction.
Money ContainedTax(Money price, double percent);

}  // namespace values
