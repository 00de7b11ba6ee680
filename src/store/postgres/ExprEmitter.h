#pragma once

#include <string>

#include "store/dialect/Bound.h"

namespace store::postgres {

using dialect::BoundExpr;
using dialect::BoundPtr;
using dialect::BoundTable;

// What a text column is compared, grouped and sorted by: a column beside it that the server fills with the folded text.
std::string FoldedColumn(const QString& column);
// How the server calls a type.
const char* TypeSql(Type type);

// What stands for a literal in the SQL: a parameter, with the folded text where it is compared.
struct Slot {
    int literal;
    bool folded;
    bool operator==(const Slot&) const = default;
};

// Writes expressions as SQL. Every literal becomes a parameter, and those are numbered as they are first used.
class ExprEmitter {
public:
    explicit ExprEmitter(const std::vector<BoundTable>& tables) : tables_(tables) {}

    // As a value: a condition gives -1 and 0. Where an expression has no type, as null has none, it takes the one
    // given.
    std::string Value(const BoundExpr& expr, Type untyped = Type::Whole);
    // As a condition: whatever is not 0.
    std::string Condition(const BoundExpr& expr);
    // As what rows are compared, grouped and sorted by: a text folded.
    std::string Key(const BoundExpr& expr, Type untyped = Type::Whole);

    // From now on what is grouped by is one value a group; null: nothing is.
    void SetGroups(const std::vector<BoundPtr>* groups) { groups_ = groups; }

    const std::vector<Slot>& Slots() const { return slots_; }

private:
    std::string ColumnSql(const BoundExpr& column, bool folded) const;
    std::string ParameterSql(const BoundExpr& literal, bool folded);
    std::string Aggregate(const BoundExpr& expr);
    std::string TextAggregate(const BoundExpr& expr);
    std::string Arithmetic(const BoundExpr& expr);
    std::string Stored(const BoundExpr& expr);
    std::string Like(const BoundExpr& expr);
    std::string Compared(const BoundExpr& expr);
    std::string JoinedText(const BoundExpr& expr);
    bool IsGrouped(const BoundExpr& expr) const;

    const std::vector<BoundTable>& tables_;
    const std::vector<BoundPtr>* groups_ = nullptr;
    std::vector<Slot> slots_;
};

}  // namespace store::postgres
