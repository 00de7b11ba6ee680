#include "upkeep/goods/ShopGoods.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

// What spreadsheets of other countries write for the same.
const QStringList SameUnits[] = {{u"pcs"_s, u"pc"_s, u"piece"_s, u"pieces"_s, u"stk"_s, u"stck"_s, u"stück"_s, u"st"_s,
                                  u"kom"_s, u"komad"_s, u"ks"_s, u"pz"_s, u"pza"_s, u"ud"_s, u"each"_s, u"ea"_s},
                                 {u"kg"_s, u"kilo"_s, u"kilogram"_s, u"kilogramm"_s},
                                 {u"l"_s, u"lt"_s, u"ltr"_s, u"liter"_s, u"litre"_s, u"litar"_s, u"lit"_s},
                                 {u"m"_s, u"meter"_s, u"metre"_s, u"metar"_s, u"mtr"_s}};

}  // namespace

Goods GoodsOf(store::Recordset& product) {
    return {.name = product[u"ProdDescription"].TextOrEmpty(),
            .unit = product[u"Unit"].TextOrEmpty(),
            .tax = product[u"TaxID"].TextOrEmpty(),
            .price = product[u"UnitPrice"].MoneyOrZero(),
            .quantity = product[u"Qty"].MoneyOrZero()};
}

ShopGoods::ShopGoods(store::Database& main) {
    auto products = main.OpenSnapshot(u"SELECT ProdCode, ProdDescription, Unit, TaxID, UnitPrice, Qty FROM Products"_s);
    for (auto& product : products) {
        const QString code = product[u"ProdCode"].TextOrEmpty();
        goods_.insert(code.toCaseFolded(), GoodsOf(product));
        spellings_.insert(code.toCaseFolded(), code);
    }
    auto units = main.OpenSnapshot(u"SELECT Abr FROM Unit"_s);
    for (auto& unit : units) units_.insert(unit[0].TextOrEmpty().toCaseFolded(), unit[0].TextOrEmpty());
    auto taxes = main.OpenSnapshot(u"SELECT TaxID, Percent FROM Tax"_s);
    for (auto& tax : taxes) {
        const QString code = tax[0].TextOrEmpty();
        taxes_.insert(code.toCaseFolded(), code);
        taxesOfRate_.insert(tax[u"Percent"].MoneyOrZero().Units(), code);
    }
}

QString ShopGoods::UnitNamed(const QString& unit) const {
    QString word = unit.toCaseFolded();
    while (word.endsWith(u'.')) word.chop(1);
    if (const auto known = units_.constFind(word); known != units_.cend()) return *known;
    for (const QStringList& same : SameUnits) {
        if (!same.contains(word)) continue;
        for (const QString& other : same)
            if (const auto known = units_.constFind(other); known != units_.cend()) return *known;
    }
    return {};
}

const Goods* ShopGoods::Find(const QString& code) const {
    const auto found = goods_.constFind(code.toCaseFolded());
    return found == goods_.cend() ? nullptr : &*found;
}

QString ShopGoods::SpellingOf(const QString& code) const {
    return spellings_.value(code.toCaseFolded());
}

QString ShopGoods::TaxOfRate(Money percent) const {
    return taxesOfRate_.count(percent.Units()) == 1 ? taxesOfRate_.value(percent.Units()) : QString();
}

}  // namespace upkeep
