#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>

#include "store/Database.h"

namespace upkeep {

// What the boxes of the till take.
inline constexpr int LongestCode = 13, LongestName = 40;

// What a table from elsewhere brings in and no screen would: goods that the till refuses, cuts or taxes wrongly. Knows
// the taxes and units of a shop as they were when it was made.
class GoodsFaults {
public:
    explicit GoodsFaults(store::Database& main);

    // In words, one a fault. Of a row that is just being added what is written so far.
    QStringList Of(store::Recordset& product) const;

private:
    QString FaultOfTax(store::Recordset& product) const;

    QHash<QString, values::Value> rates_;
    QSet<QString> units_;
};

}  // namespace upkeep
