#include "values/Tax.h"

namespace values {

Money ContainedTax(Money price, double percent) {
    return price - Money::FromDouble(price.ToDouble() / (1 + percent / 100));
}

}  // namespace values
