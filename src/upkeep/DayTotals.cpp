#include "upkeep/DayTotals.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto DaysQuery =
    u"SELECT DateSold, Count(*) AS N, Sum(CashAmount) AS Cash, Sum(TaxTotal) AS Tax FROM Invoices GROUP BY DateSold"_s;

}  // namespace

std::vector<DayTotal> DayTotalsOf(store::Database& database) {
    std::vector<DayTotal> days;
    auto rows = database.OpenSnapshot(DaysQuery);
    for (auto& row : rows)
        days.push_back({.day = row[0].IsNull() ? QDate() : row[0].Get().ToDate(),
                        .invoices = static_cast<int>(row[1].Whole()),
                        .takings = row[2].MoneyOrZero(),
                        .tax = row[3].MoneyOrZero()});
    return days;
}

}  // namespace upkeep
