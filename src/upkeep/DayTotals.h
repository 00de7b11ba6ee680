#pragma once

#include <QDate>
#include <QList>

#include "store/Database.h"
#include "values/Money.h"

namespace upkeep {

// What a shop has sold on a day; invalid for invoices without one.
struct DayTotal {
    QDate day;
    qint64 invoices = 0;
    values::Money takings;
    values::Money tax;
    bool operator==(const DayTotal&) const = default;
};

// By day.
using DayTotals = QList<DayTotal>;
DayTotals ReadDayTotals(store::Database& main);

// As lines of a file; a values::Error for what are none.
QByteArray WriteDayTotals(const DayTotals& days);
DayTotals ParseDayTotals(const QByteArray& lines);

// A day in two stores; none sold in one of them: no invoices there.
struct DayInTwo {
    DayTotal one;
    DayTotal other;
    bool IsSame() const { return one == other; }
};
// Those that differ first, then by day from the last on.
QList<DayInTwo> Compare(const DayTotals& one, const DayTotals& other);
// Whether all days before this one are the same.
bool AreSameBefore(QDate day, const DayTotals& one, const DayTotals& other);

}  // namespace upkeep
