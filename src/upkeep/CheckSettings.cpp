#include "store/OptionsTable.h"
#include "upkeep/Check.h"
#include "upkeep/TableLoader.h"

using namespace Qt::StringLiterals;

namespace upkeep {

void CheckSettings(store::Database& options, Findings& findings) {
    auto rows = OpenTable(options, FindTable(options, u"Options"_s));
    int count = 0;
    for (auto& row : rows) {
        ++count;
        for (const store::OptionsColumn& column : store::OptionsColumns())
            if (column.atStart == store::AtStart::Required && row[column.name].IsNull())
                findings.Note(u"settings without a value, which start-up stops at"_s, column.name,
                              FindingKind::SettingMissing);
    }
    if (count != 1)
        findings.Damage(store::NotAStore, u"Options store: Options has %1 rows instead of one."_s.arg(count),
                        FindingKind::SettingsNotOneRow);
}

}  // namespace upkeep
