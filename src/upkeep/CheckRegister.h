#pragma once

#include <QString>

#include "upkeep/Findings.h"
#include "upkeep/Progress.h"

namespace upkeep {

// Looks a register over: both stores, and the ribbon in its folder. What cannot be opened is damage among the findings;
// a ribbon that cannot be read throws a FileError. Leaving throws StoreError 3059.
Findings CheckRegister(const QString& folder, const Progress& progress = {});

}  // namespace upkeep
