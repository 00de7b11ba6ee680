#pragma once

#include <QMap>
#include <QStringList>
#include <optional>

namespace upkeep {

// What a column of a table of goods can hold.
enum class GoodsField { Code, Name, Price, Unit, Tax, Quantity };

// As the owner reads it, and as velton-store takes it (--map COLUMN=FIELD).
QString NameOf(GoodsField field);
std::optional<GoodsField> FieldNamed(const QString& word);
inline constexpr GoodsField AllGoodsFields[] = {GoodsField::Code, GoodsField::Name, GoodsField::Price,
                                                GoodsField::Unit, GoodsField::Tax,  GoodsField::Quantity};

// Column to field, from the words of headings in several languages; each field once, the likeliest column.
QMap<int, GoodsField> GuessColumns(const QStringList& headings);

}  // namespace upkeep
