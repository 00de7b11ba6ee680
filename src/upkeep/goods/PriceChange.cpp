#include "upkeep/goods/PriceChange.h"

#include <algorithm>
#include <optional>

#include "store/Schema.h"
#include "upkeep/GoodsFaults.h"
#include "upkeep/goods/ShopGoods.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

const auto ProductsQuery = u"SELECT * FROM Products"_s;

constexpr qint64 Cent = Money::Scale / 100;
constexpr qint64 Hundred = 100 * Money::Scale;

// To a whole multiple of `step`, halves away from zero or, where `down` says so, to the lower one. Prices are not
// negative.
qint64 Rounded(qint64 units, qint64 step, bool halvesDown) {
    const qint64 rest = units % step;
    const bool up = halvesDown ? 2 * rest > step : 2 * rest >= step;
    return units - rest + (up ? step : 0);
}

bool IsChosen(store::Recordset& product, const PriceChange& change) {
    if (!change.tax.isEmpty() && product[u"TaxID"].TextOrEmpty().compare(change.tax, Qt::CaseInsensitive) != 0)
        return false;
    if (change.tab >= 0 && (product[u"Tab"].IsNull() || product[u"Tab"].Whole() < 0 ||
                            product[u"Tab"].Whole() / store::PlacesPerTab != change.tab))
        return false;
    return product[u"ProdDescription"].TextOrEmpty().contains(change.namePart, Qt::CaseInsensitive);
}

using Rates = QHash<QString, values::Value>;

// The rate of a product's tax where the product has another one or none.
std::optional<Money> NewRate(store::Recordset& product, const Rates& rates) {
    const values::Value rate = rates.value(product[u"TaxID"].TextOrEmpty().toCaseFolded());
    const auto has = product[u"TaxPercent"];
    if (rate.IsNull() || (!has.IsNull() && has.Money() == rate.ToMoney())) return {};
    return rate.ToMoney();
}

}  // namespace

Money ChangedPrice(Money price, const PriceChange& change) {
    if (price <= Money()) return price;
    // Wide enough: a price has some ten digits of these, a percentage seven.
    const __int128 scaled = static_cast<__int128>(price.Units()) * (Hundred + change.percent.Units());
    const qint64 exact = static_cast<qint64>(std::max<__int128>(0, (scaled + Hundred / 2) / Hundred));
    qint64 units = Rounded(exact, Cent, false);
    switch (change.ending) {
        case PriceChange::Ending::Cents:
            break;
        case PriceChange::Ending::Five:
            units = Rounded(units, 5 * Cent, true);
            break;
        case PriceChange::Ending::Ten:
            units = Rounded(units, 10 * Cent, true);
            break;
        case PriceChange::Ending::NinetyNine:
            units = Rounded(units + Cent, Money::Scale, true) - Cent;
            break;
    }
    const qint64 least = change.ending == PriceChange::Ending::NinetyNine ? 99 * Cent
                         : change.ending == PriceChange::Ending::Five     ? 5 * Cent
                         : change.ending == PriceChange::Ending::Ten      ? 10 * Cent
                                                                          : Cent;
    return Money::FromUnits(std::max(units, least));
}

GoodsPreview PreviewPrices(store::Database& main, const PriceChange& change) {
    GoodsPreview preview;
    auto products = main.OpenSnapshot(ProductsQuery);
    for (auto& product : products) {
        if (!IsChosen(product, change)) continue;
        GoodsRow row{.code = product[u"ProdCode"].TextOrEmpty(), .before = GoodsOf(product)};
        row.after = row.before;
        row.after.price = ChangedPrice(row.before.price, change);
        row.kind = row.before == row.after ? GoodsRow::Kind::Unchanged : GoodsRow::Kind::Changed;
        preview.rows.push_back(std::move(row));
    }
    return preview;
}

std::vector<RateChange> PreviewRates(store::Database& main) {
    std::vector<RateChange> changes;
    const Rates rates = RatesOf(main);
    auto products = main.OpenSnapshot(ProductsQuery);
    for (auto& product : products) {
        if (const auto rate = NewRate(product, rates))
            changes.push_back({.code = product[u"ProdCode"].TextOrEmpty(),
                               .name = product[u"ProdDescription"].TextOrEmpty(),
                               .before = product[u"TaxPercent"].MoneyOrZero(),
                               .after = *rate});
    }
    return changes;
}

int WriteRates(store::Database& main) {
    store::Database::Batch batch(main);
    const Rates rates = RatesOf(main);
    int written = 0;
    for (auto& product : main.OpenRecordset(ProductsQuery)) {
        const auto rate = NewRate(product, rates);
        if (!rate) continue;
        product.Edit();
        product[u"TaxPercent"] = *rate;
        product.Update();
        ++written;
    }
    batch.Commit();
    return written;
}

}  // namespace upkeep
