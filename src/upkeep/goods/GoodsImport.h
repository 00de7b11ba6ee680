#pragma once

#include <functional>

#include "upkeep/goods/GoodsChange.h"
#include "upkeep/goods/GoodsSheet.h"

namespace upkeep {

struct ImportOptions {
    enum class Rows { All, OnlyNew, OnlyKnown };
    Rows rows = Rows::All;
    // Leaves the prices, the quantities of goods that are there already as they are.
    bool keepPrice = false;
    bool keepQuantity = false;
    // What new goods get where their row says none.
    QString unit;
    QString tax;
};

// Asked every few rows; false leaves with a StoreError 3059.
using GoesOn = std::function<bool()>;

// What a table of goods would do to the shop as it is: rows are matched by their codes, in any case of letters, as the
// store knows them. An empty cell leaves what is there. A row that the till could not sell, that says what can't be, or
// whose code stands twice is refused, with the reason in words; what stands in the store already is not, whatever it
// is. A tax is named by its code or by its rate. A quantity is the stock to be. A group of the click table gives goods
// that are not in it its first free button; a group that the table does not have leaves them where they are. StoreError
// 3265 when no column is the code, or a default is none of the shop's.
Preview PreviewGoods(store::Database& main, const GoodsSheet& sheet, const ImportOptions& options = {},
                     const GoesOn& goesOn = {});

}  // namespace upkeep
