#pragma once

#include "store/dialect/Lexer.h"
#include "store/dialect/Plan.h"

namespace store::dialect {

// What a literal is bound as. A text that is to be a number, date or time is read in the user's locale.
// 6 for a number that its target cannot hold, 3075 for a date that does not exist, 3421 for a text that is none.
BoundValue ValueOf(const QString& text, const Token& literal, Target target);

}  // namespace store::dialect
