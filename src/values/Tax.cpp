#include "values/Tax.h"

#include "values/Error.h"
#include "values/Words.h"

namespace values {

Money ContainedTax(Money price, double percent) {
    return price - Money::FromDouble(price.ToDouble() / (1 + percent / 100));
}

double PriceWithoutTax(Money price, double percent) {
    const Money divisor = Money::FromDouble(1 + percent / 100);
    if (divisor == Money()) throw Error(DivisionByZero, Words::tr("Division by zero."));
    return price.ToDouble() / divisor.ToDouble();
}

}  // namespace values
