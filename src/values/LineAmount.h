#pragma once

#include "values/Money.h"

namespace values {

// The arithmetic of an invoice line. Working values are doubles; the pattern "0.00" rounds them when they are shown.

// A quantity cut to three decimals by floor: a negative one moves away from zero. Error 6 where money overflows.
double CutQuantity(Money quantity);

// What a new line comes to: a product of money, at four decimals half to even.
double NewLineAmount(Money unitPrice, Money quantity);

// A line to which more of its product is added, at the price and rate of now. All of it is reckoned in doubles, so that
// its amount can differ by a cent from that of a new line.
struct MergedLine {
    double quantity;
    double amount;
    double tax;
};
MergedLine MergeLines(Money quantity, Money added, double unitPrice, double percent);

// A sum over the lines, to which an amount is added at four decimals.
double AddToSum(double sum, Money amount);

}  // namespace values
