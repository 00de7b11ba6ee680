#pragma once

#include <vector>

#include "store/dialect/Lexer.h"
#include "store/dialect/Tree.h"

namespace store::dialect {

// The tree of a whole query text. One text is one statement; a semicolon may end it.
Statement Parse(const QString& text, const std::vector<Token>& tokens);
// The tree of a criteria text: a condition alone.
ExprPtr ParseCriteria(const QString& text, const std::vector<Token>& tokens);

}  // namespace store::dialect
