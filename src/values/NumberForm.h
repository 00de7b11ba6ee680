#pragma once

#include <QString>
#include <QStringView>

#include "values/Decimal.h"

namespace values {

// Up to how many whole digits a number is written out: a double has no more to tell, the exact kinds have them all.
constexpr int WholeDigitsOfDouble = 15;
constexpr int WholeDigitsOfExact = 20;

// General number text: no groups, no needless zeros; from ten to the power of `wholeDigits` on, and below 0.0001, with
// an exponent.
QString GeneralText(const Decimal& decimal, int wholeDigits);

// By a pattern of 0, #, comma and point.
QString PatternText(Decimal decimal, QStringView pattern);

}  // namespace values
