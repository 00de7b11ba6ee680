#include "upkeep/labels/ShelfGoods.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr qint64 ButtonsOfATab = 32;
constexpr qsizetype Tabs = 10;

const auto GoodsQuery =
    u"SELECT ProdCode, ProdDescription, Unit, UnitPrice, TaxID, Tab FROM Products ORDER BY ProdDescription"_s;
const auto TabsQuery = u"SELECT TabControl, TabDescription FROM TabControl ORDER BY TabControl"_s;
const auto TaxesQuery = u"SELECT TaxID, Name FROM Tax"_s;

int GroupOf(const values::Value& button) {
    const qint64 place = button.IsNull() ? -1 : button.ToWhole();
    return place < 0 || place >= Tabs * ButtonsOfATab ? -1 : static_cast<int>(place / ButtonsOfATab);
}

}  // namespace

ShelfGoods ReadShelfGoods(store::Database& main) {
    ShelfGoods shelf;
    auto goods = main.OpenSnapshot(GoodsQuery);
    for (auto& row : goods) {
        ShelfGood good{.code = row[u"ProdCode"].TextOrEmpty(),
                       .name = row[u"ProdDescription"].TextOrEmpty(),
                       .unit = row[u"Unit"].TextOrEmpty(),
                       .price = {},
                       .tax = row[u"TaxID"].TextOrEmpty(),
                       .group = GroupOf(row[u"Tab"].Get())};
        if (!row[u"UnitPrice"].IsNull()) good.price = row[u"UnitPrice"].Money();
        shelf.goods.push_back(std::move(good));
    }
    shelf.groups.resize(Tabs);
    auto tabs = main.OpenSnapshot(TabsQuery);
    for (auto& row : tabs)
        if (const qint64 tab = row[0].IsNull() ? 0 : row[0].Whole(); tab >= 1 && tab <= Tabs)
            shelf.groups[tab - 1] = row[1].TextOrEmpty();
    auto taxes = main.OpenSnapshot(TaxesQuery);
    for (auto& row : taxes) shelf.taxes.emplace_back(row[0].TextOrEmpty(), row[1].TextOrEmpty());
    return shelf;
}

bool GoodsFilter::Takes(const ShelfGood& good) const {
    if (group && *group != good.group) return false;
    if (tax && tax->compare(good.tax, Qt::CaseInsensitive) != 0) return false;
    return text.isEmpty() || good.name.contains(text, Qt::CaseInsensitive) ||
           good.code.startsWith(text, Qt::CaseInsensitive);
}

}  // namespace upkeep
