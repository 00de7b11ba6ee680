#pragma once

#include <QList>

#include "values/Money.h"

namespace values {

// What a customer is likely to give for a total: the sum itself, then up to three larger ones that notes and small
// combinations of them make, 37.40 for instance with 40, 50 and 100. Nothing for what is not to be paid.
QList<Money> CashSums(Money total);

}  // namespace values
