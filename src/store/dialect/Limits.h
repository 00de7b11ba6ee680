#pragma once

// How large a query text may grow before it is refused, whatever the engine: below the bounds that engines have on
// parameters, columns and tables.
namespace store::dialect {

constexpr int MaxTokens = 30'000;
constexpr int MaxDepth = 250;  // of brackets, and of a tree
constexpr int MaxTables = 32;
constexpr int MaxColumns = 1000;  // and groupings, and sortings
constexpr int MaxNodes = 60'000;  // of a bound query, where an alias counts as what it stands for

}  // namespace store::dialect
