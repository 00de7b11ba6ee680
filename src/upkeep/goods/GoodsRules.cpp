#include "upkeep/goods/GoodsRules.h"

#include <algorithm>
#include <array>

#include "store/CaseFold.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

// What tables of several countries call the same unit.
const std::array<QStringList, 4>& SameUnits() {
    static const std::array<QStringList, 4> units{
        u"pcs,pc,pce,piece,pieces,each,ea,stk,stck,st,stück,stueck,kom,komad,komada,ks,pz,pezzo,pezzi,pza,ud,uds,pièce,szt,db"_s
            .split(u','),
        u"kg,kgs,kilo,kilogram,kilograms,kilogramm,kilogramme"_s.split(u','),
        u"l,lt,ltr,lit,liter,liters,litre,litres,litar,litra,litro,litri"_s.split(u','),
        u"m,mtr,meter,meters,metre,metres,metar,metara,metro,metri,mètre"_s.split(u',')};
    return units;
}

}  // namespace

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

int ClickGroups::GroupOf(const values::Value& button) {
    const qint64 number = button.IsNull() ? NoButton : button.ToWhole();
    return number < 0 || number >= ButtonsEach * Count ? -1 : static_cast<int>(number / ButtonsEach);
}

QString ClickGroups::NameOf(const values::Value& button) const {
    const int group = GroupOf(button);
    return group < 0 ? QString() : names[group];
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

const QString* GoodsRules::UnitMeantBy(const QString& word, const QString& usual) const {
    QString bare = word;
    while (bare.endsWith(u'.')) bare.chop(1);
    for (const QString& spelling : {word, bare})
        if (const QString* unit = FindUnit(spelling)) return unit;
    const auto same = std::ranges::find_if(
        SameUnits(), [&](const QStringList& words) { return words.contains(bare, Qt::CaseInsensitive); });
    if (same == SameUnits().end()) return nullptr;
    if (const QString* unit = FindUnit(usual); unit != nullptr && same->contains(usual, Qt::CaseInsensitive))
        return unit;
    for (const QString& other : *same)
        if (const QString* unit = FindUnit(other)) return unit;
    return nullptr;
}

}  // namespace upkeep
