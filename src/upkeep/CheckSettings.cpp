#include "upkeep/Check.h"
#include "upkeep/TableLoader.h"

using namespace Qt::StringLiterals;

namespace upkeep {

void CheckSettings(store::Database& options, Findings& findings) {
    const store::Table& table = FindTable(options, u"Options"_s);
    auto rows = OpenTable(options, table);
    int count = 0;
    for (auto& row : rows) {
        ++count;
        for (const store::Column& column : table.columns)
            if (row[column.name].IsNull())
                findings.Note(u"settings without a value, which start-up stops at"_s, column.name);
    }
    if (count != 1)
        findings.Damage(store::NotAStore, u"Options store: Options has %1 rows instead of one."_s.arg(count));
}

}  // namespace upkeep
