#pragma once

#include <QDate>
#include <vector>

#include "store/Database.h"
#include "values/Money.h"

namespace upkeep {

// What was sold on a day, of all registers of the store.
struct DayTotal {
    QDate day;  // invalid: invoices without a day
    int invoices = 0;
    values::Money takings;  // CashAmount
    values::Money tax;
    bool operator==(const DayTotal&) const = default;
};

// By day.
std::vector<DayTotal> DayTotalsOf(store::Database& database);

}  // namespace upkeep
