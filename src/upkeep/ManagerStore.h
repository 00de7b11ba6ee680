#pragma once

#include <QDate>
#include <QList>
#include <QTime>

#include "store/Database.h"
#include "values/Money.h"

// The owner's own data of a register, manager.pos in its folder: what the till neither reads nor writes.
namespace upkeep {

inline const QString ManagerFile = QStringLiteral("manager.pos");
const store::Schema& ManagerSchema();

// Made when it is missing, and open to its user alone. A file that is no such store, damaged, or of a newer program
// throws a StoreError and stays as it is.
std::unique_ptr<store::Database> OpenManagerStore(const QString& folder);

// So many of a note or coin.
struct Denomination {
    values::Money worth;
    qint64 pieces = 0;
    bool operator==(const Denomination&) const = default;
};
using Denominations = QList<Denomination>;
values::Money SumOf(const Denominations& denominations);

// The notes and coins of a currency by their worth, the largest first: those that were chosen for it, else the usual
// ones of KM (BAM), EUR, GBP, CHF, RSD (DIN) and USD ($), else none.
QList<values::Money> DenominationsOf(store::Database* manager, const QString& currency);
void ChooseDenominations(store::Database& manager, const QString& currency, QList<values::Money> worths);
// Amounts as a person types them, between blanks or semicolons in the user's locale. Error 13 for what is no amount
// above zero, or for none at all; each once, the largest first.
QList<values::Money> ReadDenominations(const QString& text);
QString DenominationsText(const QList<values::Money>& worths);

// A count of the drawer, as it was kept. It is never changed.
struct DrawerCount {
    qint64 number = 0;  // from 1; given when it is kept
    QDate day;
    QTime time;
    QString userID;
    QString userName;
    QString currency;
    Denominations pieces;
    values::Money counted;
    qint64 endReport = 0;  // the one whose sales it was counted for; 0: those since the last one
    values::Money sold;    // in cash
    values::Money putIn;
    values::Money takenOut;
    QString remark;

    values::Money Expected() const { return sold + putIn - takenOut; }
    values::Money Difference() const { return counted - Expected(); }
};

// Gives the number.
qint64 KeepCount(store::Database& manager, const DrawerCount& count);
// The newest first.
QList<DrawerCount> KeptCounts(store::Database& manager);

}  // namespace upkeep
