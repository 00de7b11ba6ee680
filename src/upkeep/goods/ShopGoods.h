#pragma once

#include <QHash>

#include "upkeep/goods/GoodsPreview.h"

namespace upkeep {

// The goods, units and taxes of a shop at one moment, by their keys, case ignored.
class ShopGoods {
public:
    explicit ShopGoods(store::Database& main);

    const Goods* Find(const QString& code) const;  // null when there are none
    QString SpellingOf(const QString& code) const;
    // As the shop spells them; empty when there is none, or for a rate when several have it.
    // A unit also by what other countries call it, "Stk." for pcs.
    QString UnitNamed(const QString& unit) const;
    QString TaxNamed(const QString& tax) const { return taxes_.value(tax.toCaseFolded()); }
    QString TaxOfRate(values::Money percent) const;

private:
    QHash<QString, Goods> goods_;
    QHash<QString, QString> spellings_, units_, taxes_;
    QMultiHash<qint64, QString> taxesOfRate_;
};

// A row of Products as goods; nulls are empty or 0.
Goods GoodsOf(store::Recordset& product);

}  // namespace upkeep
