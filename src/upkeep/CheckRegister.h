#pragma once

#include <QString>

#include "upkeep/Findings.h"

namespace upkeep {

// Looks a register over: both stores, and the ribbon in its folder. What cannot be opened is damage among the findings;
// a ribbon that cannot be read throws a FileError.
Findings CheckRegister(const QString& folder);

}  // namespace upkeep
