#pragma once

#include <QStringList>
#include <optional>
#include <vector>

#include "store/Database.h"

namespace upkeep {

// A product as its shelf and the price list show it.
struct ShelfGood {
    QString code;
    QString name;
    QString unit;
    std::optional<values::Money> price;  // with tax
    QString tax;
    int group = -1;  // the tab of the touch table; -1 without a button
};

struct ShelfGoods {
    std::vector<ShelfGood> goods;                    // by name
    QStringList groups;                              // names of the tabs
    std::vector<std::pair<QString, QString>> taxes;  // code and name
};

ShelfGoods ReadShelfGoods(store::Database& main);

// What is looked for, in any case of letters; what stands on its own takes in all.
struct GoodsFilter {
    QString text;              // in the name, or at the beginning of the code
    std::optional<int> group;  // -1: those without a button
    std::optional<QString> tax;

    bool Takes(const ShelfGood& good) const;
};

}  // namespace upkeep
