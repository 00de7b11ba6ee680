#pragma once

#include "store/dialect/TokenReader.h"
#include "store/dialect/Tree.h"

namespace store::dialect {

// Expressions, by the binding strength of their operators. One parser serves a whole text, since it numbers the
// literals.
class ExprParser {
public:
    explicit ExprParser(TokenReader& reader) : reader_(reader) {}

    ExprPtr Expression() { return Expression(Level::Or); }
    std::vector<ExprPtr> List();
    // A field name, qualified or not.
    ExprPtr FieldName();

private:
    ExprPtr Expression(Level least);
    ExprPtr Prefix(Level least);
    ExprPtr Primary();
    ExprPtr Infix(ExprPtr left, Level least, bool& found);
    ExprPtr Predicate(ExprPtr value, bool& found);
    ExprPtr Call();
    ExprPtr LiteralToken();
    ExprPtr Node(int offset, int depth, Expr::Node node) const;

    TokenReader& reader_;
    int nesting_ = 0;
    int literals_ = 0;
};

}  // namespace store::dialect
