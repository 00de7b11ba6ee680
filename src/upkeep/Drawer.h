#pragma once

#include <QIODevice>

#include "store/Database.h"
#include "values/Money.h"

namespace upkeep {

// What has been taken since the last End Report, by the invoices of all periods that are open: the store does not tell
// registers apart. What was paid by cheque does not lie in the drawer.
struct CashSold {
    values::Money cash;
    qint64 invoices = 0;
};
CashSold ReadCashSold(store::Database& main);

// Money put into the drawer and taken out of it, as this register told its fiscal printer since the last daily report.
// What the printer's own program has taken off the file is not known any more.
struct FiscalCash {
    values::Money putIn;
    values::Money takenOut;
};
FiscalCash ReadFiscalCash(QIODevice& commands);

}  // namespace upkeep
