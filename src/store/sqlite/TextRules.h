#pragma once

struct sqlite3;

namespace store::sqlite {

// Teaches a connection the collation VELTON and the functions velton_val(text) and velton_like(pattern, text).
void RegisterTextRules(sqlite3* connection);

}  // namespace store::sqlite
