#pragma once

#include <QList>
#include <QStringList>

#include "store/Database.h"
#include "store/Schema.h"

namespace upkeep {

// Buttons of the click table in groups: a group has a name and as many of them as a tab.
struct ClickGroups {
    static constexpr int ButtonsEach = store::PlacesPerTab, Count = 10;
    static constexpr qint64 NoButton = -1;

    explicit ClickGroups(store::Database& main);
    // -1 for no button.
    static int GroupOf(const values::Value& button);
    QString NameOf(const values::Value& button) const;

    QStringList names;  // by group, from 0; the number from 1 where it has none
};

struct TaxRate {
    QString id;
    values::Value percent;
    bool operator==(const TaxRate&) const = default;
};

// The taxes and units of a shop.
struct GoodsRules {
    explicit GoodsRules(store::Database& main);
    const TaxRate* FindTax(const QString& id) const;
    // As the store spells it; null when there is none.
    const QString* FindUnit(const QString& unit) const;
    // Also by what other countries call it, "Stk." for pcs: `usual` where the word can mean it, else the first that it
    // can mean.
    const QString* UnitMeantBy(const QString& word, const QString& usual) const;
    bool operator==(const GoodsRules&) const = default;

    QList<TaxRate> taxes;
    QStringList units;
};

}  // namespace upkeep
