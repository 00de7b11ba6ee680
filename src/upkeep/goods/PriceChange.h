#pragma once

#include "upkeep/goods/GoodsPreview.h"

namespace upkeep {

// What many goods get at once. The rows of its preview are written, and taken back, as those of an import.
struct PriceChange {
    // Which goods; what is empty, or below 0, is every one.
    QString tax = {};
    int tab = -1;                // of the touch table
    QString namePart = {};       // case ignored
    values::Money percent = {};  // on the price, negative for less
    enum class Ending { Cents, Five, Ten, NinetyNine } ending = Ending::Cents;
};

// A price changed by percent, half a hundredth away from zero, then brought to the nearest price that ends as is said:
// .x0 or .x5, .x0, or .99, the lower of two that are as near. What was above 0 stays above 0.
values::Money ChangedPrice(values::Money price, const PriceChange& change);

// Each of the goods chosen, changed or unchanged.
GoodsPreview PreviewPrices(store::Database& main, const PriceChange& change);

// The goods whose rate is another than that of their tax, which changed since they were saved: their rate is written
// anew, prices stay.
struct RateChange {
    QString code;
    QString name;
    values::Money before, after;  // percent
};
std::vector<RateChange> PreviewRates(store::Database& main);
// All or none; how many.
int WriteRates(store::Database& main);

}  // namespace upkeep
