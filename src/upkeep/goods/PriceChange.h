#pragma once

#include <functional>

#include "upkeep/goods/GoodsChange.h"

namespace upkeep {

enum class PriceEnding { Cent, FiveCents, TenCents, NinetyNine };

// Which goods get other prices, and by how much.
struct PriceWish {
    // What is empty, or below 0, is every one.
    QString tax = {};
    int group = -1;  // of the click table, from 0
    QString namePart = {};
    values::Money percent = {};  // two decimals, above -100; below 0 they get cheaper
    PriceEnding ending = PriceEnding::Cent;
};

// A price, not below 0, by so many percent more, at the nearest that ends so; of two as near the higher one. What costs
// nothing goes on costing nothing, and what costs something goes on costing something.
values::Money ChangedPrice(values::Money price, values::Money percent, PriceEnding ending);

// The goods that are meant, each with its price before and after; those without a price are refused.
Preview PreviewPrices(store::Database& main, const PriceWish& wish, const std::function<bool()>& goesOn = {});

// The goods that have another rate than that of their tax, with that rate; of one tax, or of all where none is named.
// Prices hold the tax and stay.
Preview PreviewRates(store::Database& main, const QString& tax, const std::function<bool()>& goesOn = {});

}  // namespace upkeep
