#pragma once

#include <QHash>
#include <array>
#include <vector>

#include "store/Database.h"
#include "upkeep/goods/GoodsColumn.h"

namespace upkeep {

// A product by its columns.
struct Product {
    std::array<values::Value, GoodsColumns> fields;

    const values::Value& operator[](GoodsColumn column) const { return fields[static_cast<size_t>(column)]; }
    values::Value& operator[](GoodsColumn column) { return fields[static_cast<size_t>(column)]; }
    QString Code() const { return (*this)[GoodsColumn::Code].TextOrEmpty(); }
    QString Name() const { return (*this)[GoodsColumn::Name].TextOrEmpty(); }
};

// A text by which the store knows a key: two texts that are one to it have one.
QByteArray KeyOf(const QString& text);

// All products of a moment, in the order of the store.
class Assortment {
public:
    explicit Assortment(store::Database& main);

    const std::vector<Product>& Products() const { return products_; }
    // Null when there is none.
    const Product* Find(const QString& code) const;

private:
    std::vector<Product> products_;
    QHash<QByteArray, size_t> places_;
};

}  // namespace upkeep
