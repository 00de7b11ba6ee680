#include "upkeep/Check.h"

using namespace Qt::StringLiterals;

namespace upkeep {

void CheckIndexes(store::Database& main, Findings& findings) {
    for (const QString& index : main.MissingIndexes())
        findings.Note(u"indexes that are missing, so that lookups are slow or keys not unique"_s, index,
                      FindingKind::IndexMissing);
}

}  // namespace upkeep
