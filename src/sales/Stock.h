#pragma once

#include <QString>

#include "values/Money.h"

// Takes a sold quantity of one product off the stock: off its components when it is composite (one level deep), else
// off the product itself. Safe against other registers; a negative quantity adds. A product without a row is 3021.
void TakeOffStock(const QString& code, values::Money quantity);
