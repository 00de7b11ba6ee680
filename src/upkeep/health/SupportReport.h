#pragma once

#include <QString>

#include "upkeep/CheckRegister.h"

namespace upkeep {

// What whoever helps a shop from afar has to know, as a text: versions, the system, settings, what a check finds, how
// large the tables are, the last good backup and the last hundred errors. No names, no sales, no passwords and no
// addresses are in it; what might be one is told as being there and no more. What can't be read is told by the number
// of its error; only leaving throws, StoreError 3059.
QString SupportReport(const QString& folder, const Progress& progress = {});

}  // namespace upkeep
