#include "upkeep/server/ServerShop.h"

#include "store/Database.h"
#include "store/StoreError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

qint64 CountOf(store::Database& main, const QString& table) {
    return main.OpenSnapshot(u"SELECT Count(*) AS N FROM "_s + table)[0].Whole();
}

QDate LastDayOf(store::Database& main) {
    const values::Value last = main.OpenSnapshot(u"SELECT Max(DateSold) AS D FROM Invoices"_s)[0].Get();
    return last.IsNull() ? QDate() : last.ToDate();
}

}  // namespace

ShopThere LookAtServer(const store::Place& place) {
    try {
        const auto main = store::Database::Open(place, store::MainSchema());
        return {.isThere = true,
                .products = CountOf(*main, u"Products"_s),
                .invoices = CountOf(*main, u"Invoices"_s),
                .lastDay = LastDayOf(*main)};
    } catch (const store::StoreError& error) {
        if (error.Number() != store::FileNotFound) throw;
        return {};
    }
}

}  // namespace upkeep
