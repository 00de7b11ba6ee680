#pragma once

#include <QString>
#include <vector>

#include "upkeep/labels/Barcode.h"

namespace manager {

// The bars of a code from left to right, one entry a module: true is black. The quiet zones around them are not in it.
struct Modules {
    std::vector<bool> black;
    int quietLeft = 0;  // in modules
    int quietRight = 0;

    int Width() const { return static_cast<int>(black.size()) + quietLeft + quietRight; }
};

// Without a module where the kind can't carry the code.
Modules ModulesOf(upkeep::Barcode kind, const QString& code);

}  // namespace manager
