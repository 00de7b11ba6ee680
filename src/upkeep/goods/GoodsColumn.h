#pragma once

#include <QString>

namespace upkeep {

// What a product has and may be given: the columns of Products that tables in and out know.
enum class GoodsColumn { Code, Name, Quantity, Unit, Price, Tax, Rate, Picture, Button };
inline constexpr size_t GoodsColumns = 9;

// The column of the store.
const QString& StoreField(GoodsColumn column);
// As a person reads it.
QString ColumnName(GoodsColumn column);
bool IsAmount(GoodsColumn column);

}  // namespace upkeep
