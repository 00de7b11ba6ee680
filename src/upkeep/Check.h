#pragma once

#include <vector>

#include "store/Database.h"
#include "upkeep/Findings.h"
#include "upkeep/RibbonReader.h"
#include "upkeep/SalesBook.h"

// The looks that make up a check of a shop. Each adds to the findings what it met, and asks nobody.
namespace upkeep {

void CheckIndexes(store::Database& main, Findings& findings);
// Invoices, their lines, periods and logins: what they refer to, their numbers and their totals.
void CheckSales(store::Database& main, const SalesBook& book, const DistinctKeys& products, Findings& findings);
// A fact for each End Report and for what is open: whether invoices, lines, taxes and takings agree and the numbers run
// on without a gap or a double.
void CheckPeriods(const SalesBook& book, Findings& findings);
// Goods, compositions, and the tables that only stand as they were delivered.
void CheckGoods(store::Database& main, const DistinctKeys& products, Findings& findings);
// An invoice on paper that the store lacks is damage. One that was stored later than the ribbon's first and is not on
// it is a note; `goesOn` tells whether the ribbon is still written.
void CheckRibbon(const std::vector<Receipt>& ribbon, bool goesOn, const SalesBook& book, Findings& findings);
void CheckSettings(store::Database& options, Findings& findings);

}  // namespace upkeep
