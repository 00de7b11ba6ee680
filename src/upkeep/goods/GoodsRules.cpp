#include "upkeep/goods/GoodsRules.h"

#include <algorithm>

#include "store/CaseFold.h"

using namespace Qt::StringLiterals;

namespace upkeep {

ClickGroups::ClickGroups(store::Database& main) {
    for (int group = 1; group <= Count; ++group) names += QString::number(group);
    auto rows = main.OpenSnapshot(u"SELECT TabDescription FROM TabControl"_s);
    int group = 0;
    for (auto& row : rows) {
        if (group == Count) break;
        if (const QString name = row[0].TextOrEmpty().trimmed(); !name.isEmpty()) names[group] = name;
        ++group;
    }
}

QString ClickGroups::NameOf(const values::Value& button) const {
    if (button.IsNull()) return {};
    const qint64 number = button.ToWhole();
    return number < 0 || number >= ButtonsEach * Count ? QString() : names[number / ButtonsEach];
}

GoodsRules::GoodsRules(store::Database& main) {
    auto rates = main.OpenSnapshot(u"SELECT TaxID, Percent FROM Tax"_s);
    for (auto& rate : rates) taxes.append({rate[0].TextOrEmpty(), rate[1].Get()});
    auto rows = main.OpenSnapshot(u"SELECT Abr FROM Unit"_s);
    for (auto& row : rows) units.append(row[0].TextOrEmpty());
}

const TaxRate* GoodsRules::FindTax(const QString& id) const {
    const auto found = std::ranges::find_if(taxes, [&](const TaxRate& tax) { return store::SameText(tax.id, id); });
    return found == taxes.end() ? nullptr : &*found;
}

const QString* GoodsRules::FindUnit(const QString& unit) const {
    const auto found = std::ranges::find_if(units, [&](const QString& known) { return store::SameText(known, unit); });
    return found == units.end() ? nullptr : &*found;
}

}  // namespace upkeep
