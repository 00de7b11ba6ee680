#include "store/dialect/ExprParser.h"

#include <algorithm>
#include <optional>

#include "store/Words.h"
#include "store/dialect/Limits.h"
#include "store/dialect/Nesting.h"

namespace store::dialect {

namespace {

constexpr const char* AnExpression = QT_TRANSLATE_NOOP("store", "an expression");
constexpr const char* AFieldName = QT_TRANSLATE_NOOP("store", "a field name");

std::optional<Op> OpOf(Lexeme lexeme) {
    switch (lexeme) {
        case Lexeme::Or:
            return Op::Or;
        case Lexeme::And:
            return Op::And;
        case Lexeme::Equal:
            return Op::Equal;
        case Lexeme::NotEqual:
            return Op::NotEqual;
        case Lexeme::Less:
            return Op::Less;
        case Lexeme::LessEqual:
            return Op::LessEqual;
        case Lexeme::Greater:
            return Op::Greater;
        case Lexeme::GreaterEqual:
            return Op::GreaterEqual;
        case Lexeme::Ampersand:
            return Op::Join;
        case Lexeme::Plus:
            return Op::Add;
        case Lexeme::Minus:
            return Op::Subtract;
        case Lexeme::Star:
            return Op::Multiply;
        case Lexeme::Slash:
            return Op::Divide;
        default:
            return std::nullopt;
    }
}

Level Above(Level level) {
    return static_cast<Level>(static_cast<int>(level) + 1);
}

int DepthOf(const std::vector<ExprPtr>& list) {
    int depth = 0;
    for (const ExprPtr& expr : list) depth = std::max(depth, expr->depth);
    return depth;
}

}  // namespace

ExprPtr ExprParser::Node(int offset, int depth, Expr::Node node) const {
    const Span span = reader_.SpanFrom(offset);
    if (depth >= MaxDepth) reader_.Fail()(SyntaxError, span, Words::tr("The expression is nested too deeply."));
    return std::make_unique<Expr>(Expr{std::move(node), span, depth + 1});
}

ExprPtr ExprParser::Expression(Level least) {
    const Nesting nesting(nesting_, reader_);
    ExprPtr left = Prefix(least);
    bool found = true;
    while (found) left = Infix(std::move(left), least, found);
    return left;
}

ExprPtr ExprParser::Prefix(Level least) {
    const int offset = reader_.Peek().span.offset;
    if (least <= Level::Not && reader_.Take(Lexeme::Not)) {
        ExprPtr operand = Expression(Level::Not);
        const int depth = operand->depth;
        return Node(offset, depth, NotExpr{std::move(operand)});
    }
    if (reader_.Take(Lexeme::Minus)) {
        ExprPtr operand = Expression(Level::Minus);
        const int depth = operand->depth;
        return Node(offset, depth, NegateExpr{std::move(operand)});
    }
    return Primary();
}

ExprPtr ExprParser::Infix(ExprPtr left, Level least, bool& found) {
    if (least <= Level::Compare) {
        left = Predicate(std::move(left), found);
        if (found) return left;
    }
    const std::optional<Op> op = OpOf(reader_.Peek().lexeme);
    found = op && LevelOf(*op) >= least;
    if (!found) return left;

    reader_.Advance();
    ExprPtr right = Expression(Above(LevelOf(*op)));
    const int offset = left->span.offset;
    const int depth = std::max(left->depth, right->depth);
    return Node(offset, depth, BinaryExpr{*op, std::move(left), std::move(right)});
}

ExprPtr ExprParser::Predicate(ExprPtr value, bool& found) {
    found = true;
    const int offset = value->span.offset;
    int depth = value->depth;
    if (reader_.Take(Lexeme::Is)) {
        const bool negated = reader_.Take(Lexeme::Not);
        reader_.Expect(Lexeme::Null, "NULL");
        return Node(offset, depth, IsNullExpr{negated, std::move(value)});
    }
    const bool negated = reader_.Take(Lexeme::Not);
    if (reader_.Take(Lexeme::Like)) {
        ExprPtr pattern = Expression(Level::Join);
        depth = std::max(depth, pattern->depth);
        return Node(offset, depth, LikeExpr{negated, std::move(value), std::move(pattern)});
    }
    if (reader_.Take(Lexeme::Between)) {
        ExprPtr low = Expression(Level::Join);
        reader_.Expect(Lexeme::And, "AND");
        ExprPtr high = Expression(Level::Join);
        depth = std::max({depth, low->depth, high->depth});
        return Node(offset, depth, BetweenExpr{negated, std::move(value), std::move(low), std::move(high)});
    }
    if (reader_.Take(Lexeme::In)) {
        reader_.Expect(Lexeme::Open, "(");
        std::vector<ExprPtr> list = List();
        reader_.Expect(Lexeme::Close, ")");
        depth = std::max(depth, DepthOf(list));
        return Node(offset, depth, InExpr{negated, std::move(value), std::move(list)});
    }
    if (negated) reader_.FailExpected(QT_TRANSLATE_NOOP("store", "LIKE, BETWEEN or IN"));
    found = false;
    return value;
}

std::vector<ExprPtr> ExprParser::List() {
    std::vector<ExprPtr> list;
    do {
        list.push_back(Expression());
    } while (reader_.Take(Lexeme::Comma));
    return list;
}

ExprPtr ExprParser::Primary() {
    const Token& token = reader_.Peek();
    const int offset = token.span.offset;
    if (IsLiteral(token.lexeme)) return LiteralToken();
    switch (token.lexeme) {
        case Lexeme::True:
            reader_.Advance();
            return Node(offset, 0, ConstantExpr::True);
        case Lexeme::False:
            reader_.Advance();
            return Node(offset, 0, ConstantExpr::False);
        case Lexeme::Null:
            reader_.Advance();
            return Node(offset, 0, ConstantExpr::Null);
        case Lexeme::Name: {
            const bool bracketed = reader_.Text()[offset] == u'[';
            return !bracketed && reader_.SeesAhead({Lexeme::Name, Lexeme::Open}) ? Call() : FieldName();
        }
        case Lexeme::Open: {
            reader_.Advance();
            ExprPtr inner = Expression();
            reader_.Expect(Lexeme::Close, ")");
            inner->span = reader_.SpanFrom(offset);
            return inner;
        }
        default:
            reader_.FailExpected(AnExpression);
    }
}

ExprPtr ExprParser::FieldName() {
    const Token& first = reader_.ExpectName(AFieldName);
    NameExpr name{{}, {}, NameOf(reader_.Text(), first).toString()};
    if (reader_.Take(Lexeme::Dot)) {
        name.table = std::exchange(name.name, NameOf(reader_.Text(), reader_.ExpectName(AFieldName)).toString());
        name.tableSpan = first.span;
    }
    return Node(first.span.offset, 0, std::move(name));
}

ExprPtr ExprParser::Call() {
    const Token& function = reader_.Advance();
    reader_.Expect(Lexeme::Open, "(");
    CallExpr call{NameOf(reader_.Text(), function).toString(), function.span, reader_.Take(Lexeme::Star), {}};
    if (!call.star && !reader_.Sees(Lexeme::Close)) call.arguments = List();
    reader_.Expect(Lexeme::Close, ")");
    const int depth = DepthOf(call.arguments);
    return Node(function.span.offset, depth, std::move(call));
}

ExprPtr ExprParser::LiteralToken() {
    const Token& token = reader_.Advance();
    LiteralExpr literal{Type::Text, literals_++};
    switch (token.lexeme) {
        case Lexeme::Whole:
            literal.type = Type::Whole;
            break;
        case Lexeme::Decimal:
            literal.type = Type::Decimal;
            break;
        case Lexeme::LongDecimal:
            literal.type = Type::Double;
            break;
        case Lexeme::Date:
            literal.type = Type::Date;
            break;
        default:
            break;
    }
    return Node(token.span.offset, 0, literal);
}

}  // namespace store::dialect
