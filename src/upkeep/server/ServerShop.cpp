#include "upkeep/server/ServerShop.h"

#include "store/StoreError.h"
#include "upkeep/RowCount.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

QDate LastDayOf(store::Database& main) {
    const values::Value last = main.OpenSnapshot(u"SELECT Max(DateSold) AS D FROM Invoices"_s)[0].Get();
    return last.IsNull() ? QDate() : last.ToDate();
}

}  // namespace

ShopThere LookAtServer(const store::Place& place) {
    try {
        const auto main = store::Database::Open(place, store::MainSchema());
        return {.isThere = true,
                .products = CountRows(*main, u"Products"_s),
                .invoices = CountRows(*main, u"Invoices"_s),
                .lastDay = LastDayOf(*main)};
    } catch (const store::StoreError& error) {
        if (error.Number() != store::FileNotFound) throw;
        return {};
    }
}

}  // namespace upkeep
