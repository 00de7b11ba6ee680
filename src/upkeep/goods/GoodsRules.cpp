#include "upkeep/goods/GoodsRules.h"

#include <QHash>
#include <algorithm>

#include "store/CaseFold.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

// What pieces, kilograms, litres and metres are called in the tables of shops and wholesalers.
QHash<QString, int> MeasureWords() {
    const QStringList measures[] = {
        u"pcs,pc,pce,piece,pieces,ea,each,stk,stck,st,stück,stueck,kom,komad,komada,pz,pezzo,pezzi,pièce,pièces,ud,uds,"
        "unidad,ks,szt,db"_s.split(u','),
        u"kg,kgs,kilo,kilogram,kilograms,kilogramm,kilogramme"_s.split(u','),
        u"l,lt,ltr,litre,litres,liter,liters,litar,litra,litro,litri,litros"_s.split(u','),
        u"m,mtr,metre,metres,meter,meters,metar,metara,metro,metri,metros,mètre,mètres"_s.split(u',')};
    QHash<QString, int> words;
    int measure = 0;
    for (const QStringList& names : measures) {
        for (const QString& name : names) words.insert(name, measure);
        ++measure;
    }
    return words;
}

// -1 when it is none of them.
int MeasureOf(const QString& unit) {
    static const auto words = MeasureWords();
    return words.value((unit.endsWith(u'.') ? unit.chopped(1) : unit).toCaseFolded(), -1);
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
    if (found != units.end()) return &*found;
    const int measure = MeasureOf(unit);
    const auto isOfIt = [&](const QString& known) { return MeasureOf(known) == measure; };
    if (measure < 0 || std::ranges::count_if(units, isOfIt) != 1) return nullptr;
    return &*std::ranges::find_if(units, isOfIt);
}

}  // namespace upkeep
