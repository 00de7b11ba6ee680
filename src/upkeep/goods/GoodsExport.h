#pragma once

#include "store/Database.h"
#include "upkeep/goods/SheetFile.h"

namespace upkeep {

// All goods under headings that PreviewGoods knows: what goes out comes in again without a change.
Sheet GoodsSheetOf(store::Database& main);
// The customers and suppliers, under names that a person reads.
Sheet CustomersSheetOf(store::Database& main);
// Any table of the store under the names of its fields; 3078 when there is none of that name.
Sheet TableSheetOf(store::Database& main, const QString& table);

}  // namespace upkeep
