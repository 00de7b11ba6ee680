#pragma once

#include <QString>

#include "upkeep/Findings.h"

namespace upkeep {

// What whoever helps a shop from afar has to know, as a text: versions, the system, settings, what a check found, how
// large the tables are, and the last errors. No names, no sales, no passwords and no addresses are in it; what might be
// one is told as being there and no more.
QString HelpReport(const QString& folder, const Findings& findings);

}  // namespace upkeep
