#pragma once

#include <vector>

#include "upkeep/Findings.h"

namespace upkeep {

// What was found, as a shop reads it: first what is well, then damage, notes and facts.
enum class HealthLevel { Good, Damage, Note, Fact };

struct HealthLine {
    HealthLevel level = HealthLevel::Good;
    QString what;
    QString advice;  // empty where there is nothing to do
    QString cases;   // which ones; empty where there are none to name
};

std::vector<HealthLine> HealthLinesOf(const Findings& findings);

}  // namespace upkeep
