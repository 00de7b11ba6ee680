#include "values/LineAmount.h"

#include <cmath>

namespace values {

double CutQuantity(Money quantity) {
    return std::floor((quantity * Money::FromWhole(1000)).ToDouble()) / 1000;
}

double NewLineAmount(Money unitPrice, Money quantity) {
    return (unitPrice * quantity).ToDouble();
}

MergedLine MergeLines(Money quantity, Money added, double unitPrice, double percent) {
    const double together = (added + quantity).ToDouble();
    const double amount = unitPrice * together;
    return {.quantity = together, .amount = amount, .tax = amount - amount / (1 + percent / 100)};
}

double AddToSum(double sum, Money amount) {
    return (Money::FromDouble(sum) + amount).ToDouble();
}

}  // namespace values
