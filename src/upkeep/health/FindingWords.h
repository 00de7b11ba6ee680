#pragma once

#include <QString>

#include "upkeep/health/FindingKind.h"

namespace upkeep {

// A kind of finding as a shop says it: what it is, of so many cases, and what to do about it.
struct FindingWords {
    QString what;
    QString advice;
};

FindingWords WordsOf(FindingKind kind, int cases = 1);

}  // namespace upkeep
