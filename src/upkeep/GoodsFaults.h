#pragma once

#include <QHash>
#include <QSet>
#include <optional>
#include <vector>

#include "store/Database.h"
#include "upkeep/health/FindingKind.h"

namespace upkeep {

// As many signs as their boxes at the till have.
inline constexpr int LongestCode = 13, LongestName = 40;

// The percentages by the keys of the taxes, case folded.
QHash<QString, values::Value> RatesOf(store::Database& main);

struct GoodsFault {
    FindingKind kind = FindingKind::Other;
    QString words;
};

// What a table from elsewhere brings in and no screen would: goods that the till refuses, cuts or taxes wrongly. Knows
// the taxes and units of a shop as they were when it was made.
class GoodsFaults {
public:
    explicit GoodsFaults(store::Database& main);

    // Of a row that is just being added what is written so far.
    std::vector<GoodsFault> Of(store::Recordset& product) const;

private:
    std::optional<GoodsFault> FaultOfTax(store::Recordset& product) const;

    QHash<QString, values::Value> rates_;
    QSet<QString> units_;
};

}  // namespace upkeep
