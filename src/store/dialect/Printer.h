#pragma once

#include <QString>

#include "store/dialect/Tree.h"

namespace store::dialect {

// Brackets around an expression only where it would otherwise read differently, or around all that has operands, which
// shows the tree as it is.
enum class Brackets { Needed, All };

// A tree written as a query text again; read back, it is the same tree.
QString Print(const Statement& statement, Brackets brackets = Brackets::Needed);

}  // namespace store::dialect
