#pragma once

#include <string>
#include <vector>

#include "store/dialect/Lexer.h"

namespace store::dialect {

// Appends what texts have in common that differ only in literals, blanks and the case of names: the key of their plan.
// An alias keeps its case, since the column is called by it.
void AppendShape(QStringView text, const std::vector<Token>& tokens, std::u16string& key);

}  // namespace store::dialect
