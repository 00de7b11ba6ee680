#include "upkeep/goods/PriceChange.h"

#include <algorithm>

#include "store/CaseFold.h"
#include "upkeep/GoodsFaults.h"
#include "upkeep/Words.h"

using namespace Qt::StringLiterals;
using values::Money;
using values::Value;

namespace upkeep {

namespace {

// A price times a percent outgrows 64 bits.
__extension__ using Wide = __int128;

constexpr qint64 Cent = Money::Scale / 100;
constexpr size_t RowsBetweenQuestions = 256;

// So many units, and where within them a price ends.
struct Grid {
    qint64 step;
    qint64 offset;
};

Grid GridOf(PriceEnding ending) {
    switch (ending) {
        case PriceEnding::Cent:
            return {Cent, 0};
        case PriceEnding::FiveCents:
            return {5 * Cent, 0};
        case PriceEnding::TenCents:
            return {10 * Cent, 0};
        case PriceEnding::NinetyNine:
            return {100 * Cent, 99 * Cent};
    }
    return {Cent, 0};
}

bool IsMeant(const Product& product, const PriceWish& wish) {
    if (!wish.tax.isEmpty() && !store::SameText(product[GoodsColumn::Tax].TextOrEmpty(), wish.tax)) return false;
    if (wish.group >= 0 && ClickGroups::GroupOf(product[GoodsColumn::Button]) != wish.group) return false;
    return KeyOf(product.Name()).contains(KeyOf(wish.namePart));
}

PreviewRow RowOf(const Product& product) {
    PreviewRow row;
    row.code = product.Code();
    row.name = product.Name();
    row.change.code = row.code;
    return row;
}

// A row for each product for which `look` gives one.
Preview LookAtAll(store::Database& main, const std::function<bool()>& goesOn,
                  const std::function<void(const Product&, Preview&)>& look) {
    Preview preview;
    preview.groups = ClickGroups(main).names;
    const Assortment goods(main);
    size_t seen = 0;
    for (const Product& product : goods.Products()) {
        if (goesOn && ++seen % RowsBetweenQuestions == 0 && !goesOn())
            throw store::StoreError(store::Cancelled, Words::tr("The look at the goods was left."));
        look(product, preview);
    }
    return preview;
}

}  // namespace

Money ChangedPrice(Money price, Money percent, PriceEnding ending) {
    if (price == Money()) return price;
    constexpr Wide hundred = 100 * Money::Scale;
    const Wide exact = Wide{price.Units()} * (hundred + percent.Units());  // in units of a hundredth of a percent
    const Grid grid = GridOf(ending);
    const Wide step = grid.step * hundred;
    const Wide above = exact - grid.offset * hundred + step / 2;
    Wide steps = above / step;
    if (above % step < 0) --steps;  // rounded down, not towards zero
    steps = std::max(steps, Wide{grid.offset > 0 ? 0 : 1});
    if (steps > Wide{std::numeric_limits<qint64>::max()} / grid.step - 1) values::ThrowOverflow();
    return Money::FromUnits(static_cast<qint64>(steps) * grid.step + grid.offset);
}

Preview PreviewPrices(store::Database& main, const PriceWish& wish, const std::function<bool()>& goesOn) {
    return LookAtAll(main, goesOn, [&](const Product& product, Preview& preview) {
        if (!IsMeant(product, wish)) return;
        PreviewRow row = RowOf(product);
        const Value& before = product[GoodsColumn::Price];
        if (before.IsNull() || before.ToMoney() < Money()) {
            row.kind = RowKind::Refused;
            row.reasons = {before.IsNull() ? Words::tr("The goods have no price.")
                                           : Words::tr("The price is below zero.")};
        } else if (const Money after = ChangedPrice(before.ToMoney(), wish.percent, wish.ending);
                   before != Value(after)) {
            row.kind = RowKind::Changed;
            row.change.Set(GoodsColumn::Price, before, after);
        }
        preview.rows.push_back(std::move(row));
    });
}

Preview PreviewRates(store::Database& main, const QString& tax, const std::function<bool()>& goesOn) {
    const auto rates = RatesOf(main);
    return LookAtAll(main, goesOn, [&](const Product& product, Preview& preview) {
        const QString itsTax = product[GoodsColumn::Tax].TextOrEmpty();
        if (!tax.isEmpty() && !store::SameText(itsTax, tax)) return;
        PreviewRow row = RowOf(product);
        const Value rate = rates.value(itsTax.toCaseFolded());
        if (rate.IsNull()) {
            row.kind = RowKind::Refused;
            row.reasons = {Words::tr("The shop has no tax '%1' with a rate.").arg(itsTax)};
        } else if (product[GoodsColumn::Rate] != rate) {
            row.kind = RowKind::Changed;
            row.change.Set(GoodsColumn::Rate, product[GoodsColumn::Rate], rate);
        }
        preview.rows.push_back(std::move(row));
    });
}

}  // namespace upkeep
