#pragma once

// How large a query text may grow. Whatever keeps within these bounds, the engine's own parser takes too: it has a
// fixed stack, and bounds of its own on variables, columns and tables.
namespace store::dialect {

constexpr int MaxTokens = 30'000;
constexpr int MaxDepth = 250;           // of brackets, and of a tree
constexpr int MaxEmittedBrackets = 12;  // one within the other, in the emitted SQL
constexpr int MaxTables = 32;
constexpr int MaxColumns = 1000;  // and groupings, and sortings
constexpr int MaxNodes = 60'000;  // of a bound query, where an alias counts as what it stands for

}  // namespace store::dialect
