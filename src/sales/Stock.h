#pragma once

#include <QString>
#include <functional>

#include "values/Error.h"
#include "values/Money.h"

// Told between two tries, several times a second, why the last write of a quantity failed; gives up by throwing.
using WaitForStore = std::function<void(const values::Error& why)>;

// Takes a sold quantity of one product off the stock: off its components when it is composite (one level deep), else
// off the product itself. Safe against other registers; a negative quantity adds. A product without a row is 3021.
void TakeOffStock(const QString& code, values::Money quantity, const WaitForStore& wait);
