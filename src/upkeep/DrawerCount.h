#pragma once

#include <QDateTime>
#include <vector>

#include "store/Database.h"
#include "values/Money.h"

namespace upkeep {

// A count of the money in a drawer, as it is kept in manager.pos, beside the stores of the till. One that is stored is
// never changed.
struct DrawerCount {
    QDateTime counted;
    QString user;
    QString period;  // what it was compared with, in words
    QString pieces;  // "2 x 50; 3 x 10"
    values::Money found = {};
    values::Money sales = {};
    values::Money putIn = {};     // change and deposits
    values::Money takenOut = {};  // payouts
    QString remark;

    values::Money Expected() const { return sales + putIn - takenOut; }
    values::Money Difference() const { return found - Expected(); }
};

// What a drawer can be counted for: the sales since the last End Report, or those of one.
struct DrawerPeriod {
    int endReport = 0;  // 0: since the last
    QDate closed = {};
    values::Money sales = {};  // all are paid in cash, whatever the register
};
// Since the last End Report first, then so many End Reports, the last first.
std::vector<DrawerPeriod> DrawerPeriods(store::Database& main, int endReports);

inline const QString ManagerFile = QStringLiteral("manager.pos");
// The owner's own store in the register's folder, made when it is missing.
std::unique_ptr<store::Database> OpenManagerStore(const QString& registerFolder);
void StoreCount(store::Database& manager, const DrawerCount& count);
// The last first.
std::vector<DrawerCount> ReadCounts(store::Database& manager);

// The notes and coins of a currency ("KM", "EUR"), the largest first; of an unknown one the usual steps.
std::vector<values::Money> Denominations(const QString& currency);

}  // namespace upkeep
