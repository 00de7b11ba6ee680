#pragma once

#include <string>

#include "store/dialect/Bound.h"

namespace store::sqlite {

using dialect::BoundExpr;
using dialect::BoundTable;

// Writes expressions as SQL; literal i is parameter i + 1.
class ExprEmitter {
public:
    explicit ExprEmitter(const std::vector<BoundTable>& tables) : tables_(tables) {}

    // As a value: a condition gives -1 and 0.
    std::string Value(const BoundExpr& expr) { return ValueAt(expr, Level::Or); }
    // As a condition: whatever is not 0.
    std::string Condition(const BoundExpr& expr) { return ConditionAt(expr, Level::Or); }
    // As what rows are grouped or sorted by.
    std::string Key(const BoundExpr& expr);

private:
    // How tightly a piece of SQL binds; the order is the engine's.
    enum class Level { Or, And, Not, Compare, Add, Multiply, Join, Collate, Unary, Primary };
    struct Piece {
        Level level;
        std::string sql;
    };

    static std::string Bracketed(const Piece& piece, Level least);
    std::string ValueAt(const BoundExpr& expr, Level least) { return Bracketed(ValuePiece(expr), least); }
    std::string ConditionAt(const BoundExpr& expr, Level least) { return Bracketed(ConditionPiece(expr), least); }
    std::string Arg(const BoundExpr& expr) { return ValueAt(*expr.args.front(), Level::Or); }

    Piece ValuePiece(const BoundExpr& expr);
    Piece ConditionPiece(const BoundExpr& expr);
    Piece Arithmetic(const BoundExpr& expr);
    Piece Comparison(const BoundExpr& expr);
    Piece Call(const char* function, const BoundExpr& expr);
    Piece Aggregate(const char* function, const BoundExpr& expr);
    Piece Stored(const BoundExpr& expr);
    std::string StoredExact(const BoundExpr& expr);
    std::string StoredDouble(const BoundExpr& expr);
    std::string ColumnName(const BoundExpr& column) const;
    std::string JoinedText(const BoundExpr& expr);
    std::string Compared(const BoundExpr& expr, const BoundExpr* other);

    const std::vector<BoundTable>& tables_;
};

}  // namespace store::sqlite
