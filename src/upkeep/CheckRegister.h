#pragma once

#include <QString>
#include <functional>

#include "upkeep/Findings.h"

namespace upkeep {

// Told what is looked at now; false when its user wants to leave.
using GoesOn = std::function<bool(const QString& doing)>;

// Looks a register over: both stores, and the ribbon in its folder. What cannot be opened is damage among the findings;
// a ribbon that cannot be read throws a FileError. Leaving throws StoreError 3059.
Findings CheckRegister(const QString& folder, const GoesOn& goesOn = {});

}  // namespace upkeep
