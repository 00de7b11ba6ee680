#include "upkeep/Check.h"

namespace upkeep {

void CheckIndexes(store::Database& main, Findings& findings) {
    for (const QString& index : main.MissingIndexes())
        findings.Note(
            QT_TRANSLATE_NOOP("upkeep", "indexes that are missing, so that lookups are slow or keys not unique"), index,
            FindingKind::IndexMissing);
}

}  // namespace upkeep
