#pragma once

#include <QDate>

#include "store/Database.h"

namespace delivery {

// What a demo shop has sold on the workdays of the ten weeks until this one, whose period is still open: for pictures
// and tests that need more than a few days. The same in every run; the stock stays as it is.
void TradeForWeeks(store::Database& main, QDate until);

}  // namespace delivery
