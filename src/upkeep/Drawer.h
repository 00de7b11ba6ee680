#pragma once

#include <QDate>
#include <QIODevice>
#include <QList>

#include "store/Database.h"
#include "values/Money.h"

namespace upkeep {

// What a drawer can be counted for: the time since the last End Report, or that which an End Report closed.
struct DrawerPeriod {
    qint64 endReport = 0;  // 0: since the last one
    QDate closed = {};
};
// The open one first, then so many End Reports, the newest first.
QList<DrawerPeriod> DrawerPeriods(store::Database& main, qsizetype endReports);

// What has been taken in a period, by the invoices of all registers: the store does not tell them apart. What was paid
// by cheque does not lie in the drawer.
values::Money ReadCashSold(store::Database& main, qint64 endReport);

// Money put into the drawer and taken out of it, as this register told its fiscal printer since the last daily report.
// What the printer's own program has taken off the file is not known any more.
struct FiscalCash {
    values::Money putIn;
    values::Money takenOut;
};
FiscalCash ReadFiscalCash(QIODevice& commands);

}  // namespace upkeep
