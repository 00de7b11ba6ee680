#pragma once

#include <QList>
#include <QStringList>

#include "store/Database.h"

namespace upkeep {

// Buttons of the click table in groups: a group has a name and 32 of them.
struct ClickGroups {
    static constexpr int ButtonsEach = 32, Count = 10;
    static constexpr qint64 NoButton = -1;

    explicit ClickGroups(store::Database& main);
    // The name, the number where it has none; empty for no button.
    QString NameOf(const values::Value& button) const;

    QStringList names;  // by group, from 0
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
    // As the store spells it; of another word for the same measure ("Stk" for pcs), the one unit that the shop has of
    // it. Null when there is none.
    const QString* FindUnit(const QString& unit) const;
    bool operator==(const GoodsRules&) const = default;

    QList<TaxRate> taxes;
    QStringList units;
};

}  // namespace upkeep
