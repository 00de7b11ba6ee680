#include "store/sqlite/ExprEmitter.h"

#include "store/SqlText.h"
#include "store/sqlite/Parameter.h"

namespace store::sqlite {

using dialect::ConstantExpr;
using dialect::Op;
using Form = BoundExpr::Form;

namespace {

constexpr const char* Collation = " COLLATE VELTON";
// Evaluated only where its branch is taken: the engine's way to raise "integer overflow".
constexpr const char* RaiseOverflow = "abs(-9223372036854775807 - 1)";

std::string PowerOfTen(int exponent) {
    std::string power(static_cast<size_t>(exponent) + 1, '0');
    power.front() = '1';
    return power;
}

// Only a column brings its collation along; an aggregate over it, say, does not.
bool LacksCollation(const BoundExpr& expr) {
    return expr.type == Type::Text && Aliased(expr).form != Form::Column;
}

}  // namespace

std::string ExprEmitter::Bracketed(const Piece& piece, Level least) {
    return piece.level < least ? '(' + piece.sql + ')' : piece.sql;
}

std::string ExprEmitter::Key(const BoundExpr& expr) {
    if (!LacksCollation(expr)) return Value(expr);
    return ValueAt(expr, Level::Collate) + Collation;
}

ExprEmitter::Piece ExprEmitter::ValuePiece(const BoundExpr& expr) {
    // The engine's own truth is 1, the store's is -1.
    if (IsCondition(expr)) return {Level::Unary, "-(" + Condition(expr) + ')'};
    switch (expr.form) {
        case Form::Column:
            return {Level::Primary, ColumnName(expr)};
        case Form::Literal:
            return {Level::Primary, Parameter(expr.literal + 1)};
        case Form::Constant:
            if (expr.constant == ConstantExpr::Null) return {Level::Primary, "NULL"};
            return expr.constant == ConstantExpr::True ? Piece{Level::Unary, "-1"} : Piece{Level::Primary, "0"};
        case Form::Alias:
            return ValuePiece(*expr.args.front());
        case Form::Negate:
            return {Level::Unary, '-' + ValueAt(*expr.args.front(), Level::Primary)};
        case Form::Binary:
            return Arithmetic(expr);
        case Form::Val:
            if (IsNumber(expr.args.front()->type)) return {Level::Primary, "CAST(" + Arg(expr) + " AS REAL)"};
            return Call("velton_val", expr);
        case Form::Sum:
            return Call("SUM", expr);
        case Form::Max:
            return Aggregate("MAX", expr);
        case Form::Min:
            return Aggregate("MIN", expr);
        case Form::Count:
            return expr.args.empty() ? Piece{Level::Primary, "COUNT(*)"} : Call("COUNT", expr);
        case Form::Raise: {
            const int exponent = expr.scale - expr.args.front()->scale;
            return {Level::Multiply, ValueAt(*expr.args.front(), Level::Multiply) + " * " + PowerOfTen(exponent)};
        }
        case Form::ToDouble: {
            const std::string divisor = PowerOfTen(expr.args.front()->scale) + ".0";
            return {Level::Multiply, ValueAt(*expr.args.front(), Level::Multiply) + " / " + divisor};
        }
        default:
            return Stored(expr);
    }
}

ExprEmitter::Piece ExprEmitter::ConditionPiece(const BoundExpr& expr) {
    const auto arg = [&expr](size_t position) -> const BoundExpr& { return *expr.args[position]; };
    const std::string negation = expr.negated ? " NOT" : "";
    switch (expr.form) {
        case Form::Alias:
            return ConditionPiece(arg(0));
        // Bracketed even where it need not be: the engine's parser stacks up a row of NOTs.
        case Form::Not:
            return {Level::Not, "NOT " + ConditionAt(arg(0), Level::Compare)};
        case Form::Like: {
            const std::string call = "velton_like(" + Value(arg(1)) + ", " + Value(arg(0)) + ')';
            return expr.negated ? Piece{Level::Not, "NOT " + call} : Piece{Level::Primary, call};
        }
        case Form::Between:
            return {Level::Compare, Compared(arg(0), nullptr) + negation + " BETWEEN " + ValueAt(arg(1), Level::Add) +
                                        " AND " + ValueAt(arg(2), Level::Add)};
        case Form::In: {
            std::string list;
            for (size_t i = 1; i < expr.args.size(); ++i) list += (i > 1 ? ", " : "") + Value(arg(i));
            return {Level::Compare, Compared(arg(0), nullptr) + negation + " IN (" + list + ')'};
        }
        case Form::IsNull:
            return {Level::Compare, ValueAt(arg(0), Level::Add) + " IS" + negation + " NULL"};
        case Form::Binary:
            if (expr.op == Op::And) {
                return {Level::And, ConditionAt(arg(0), Level::And) + " AND " + ConditionAt(arg(1), Level::Not)};
            }
            if (expr.op == Op::Or) {
                return {Level::Or, ConditionAt(arg(0), Level::Or) + " OR " + ConditionAt(arg(1), Level::And)};
            }
            return IsCondition(expr) ? Comparison(expr) : ValuePiece(expr);
        default:
            return ValuePiece(expr);
    }
}

ExprEmitter::Piece ExprEmitter::Comparison(const BoundExpr& expr) {
    const QLatin1StringView op = SignOf(expr.op);
    const std::string sign = ' ' + std::string(op.begin(), op.end()) + ' ';
    return {Level::Compare, Compared(*expr.args[0], expr.args[1].get()) + sign + ValueAt(*expr.args[1], Level::Add)};
}

// The first operand of a comparison, which decides how texts compare where no column does.
std::string ExprEmitter::Compared(const BoundExpr& expr, const BoundExpr* other) {
    if (!LacksCollation(expr) || (other && !LacksCollation(*other))) return ValueAt(expr, Level::Add);
    return ValueAt(expr, Level::Collate) + Collation;
}

ExprEmitter::Piece ExprEmitter::Arithmetic(const BoundExpr& expr) {
    const BoundExpr& left = *expr.args[0];
    const BoundExpr& right = *expr.args[1];
    const bool texts = expr.type == Type::Text;
    switch (expr.op) {
        case Op::Join:
            return {Level::Join, JoinedText(left) + " || " + JoinedText(right)};
        case Op::Add:
            if (texts) return {Level::Join, ValueAt(left, Level::Join) + " || " + ValueAt(right, Level::Collate)};
            return {Level::Add, ValueAt(left, Level::Add) + " + " + ValueAt(right, Level::Multiply)};
        case Op::Subtract:
            return {Level::Add, ValueAt(left, Level::Add) + " - " + ValueAt(right, Level::Multiply)};
        case Op::Multiply:
            return {Level::Multiply, ValueAt(left, Level::Multiply) + " * " + ValueAt(right, Level::Join)};
        default:
            return {Level::Multiply, "CAST(" + Value(left) + " AS REAL) / " + ValueAt(right, Level::Join)};
    }
}

// One side of &, for which null is an empty text.
std::string ExprEmitter::JoinedText(const BoundExpr& expr) {
    const BoundExpr& inner = Aliased(expr);
    const bool neverNull = inner.form == Form::Literal || (inner.form == Form::Binary && inner.op == Op::Join);
    return neverNull ? ValueAt(inner, Level::Join) : "COALESCE(" + Value(inner) + ", '')";
}

ExprEmitter::Piece ExprEmitter::Call(const char* function, const BoundExpr& expr) {
    return {Level::Primary, function + ('(' + Arg(expr) + ')')};
}

ExprEmitter::Piece ExprEmitter::Aggregate(const char* function, const BoundExpr& expr) {
    return {Level::Primary, function + ('(' + Key(*expr.args.front()) + ')')};
}

ExprEmitter::Piece ExprEmitter::Stored(const BoundExpr& expr) {
    const BoundExpr& arg = *expr.args.front();
    switch (expr.form) {
        case Form::ToText:
            if (arg.type == Type::Whole) return {Level::Primary, "CAST(" + Value(arg) + " AS TEXT)"};
            return {Level::Primary, "CASE " + Value(arg) + " WHEN 0 THEN 'False' WHEN -1 THEN 'True' END"};
        case Form::StoreYesNo:
            return {Level::Unary, "-(" + ValueAt(arg, Level::Add) + " <> 0)"};
        case Form::StoreDouble:
            return {Level::Primary, StoredDouble(expr)};
        default:
            return {Level::Primary, StoredExact(expr)};
    }
}

std::string ExprEmitter::StoredDouble(const BoundExpr& expr) {
    const std::string scaled = ValueAt(*expr.args.front(), Level::Multiply) + " * " + PowerOfTen(expr.scale) + ".0";
    // The engine rounds halves away from zero; twice the rounded half of a tie is the even one.
    return "CASE WHEN " + scaled + " NOT BETWEEN -9.2e18 AND 9.2e18 THEN " + RaiseOverflow + " WHEN abs(" + scaled +
           " - CAST(" + scaled + " AS INTEGER)) = 0.5 THEN 2 * CAST(round(" + scaled +
           " / 2) AS INTEGER) ELSE CAST(round(" + scaled + ") AS INTEGER) END";
}

// Beyond 64 bits the engine goes on in floating point by itself, which no field may take.
std::string ExprEmitter::StoredExact(const BoundExpr& expr) {
    const BoundExpr& arg = *expr.args.front();
    std::string exact = Value(arg);
    if (arg.scale > expr.scale) {
        const std::string value = ValueAt(arg, Level::Primary);
        const std::string divisor = PowerOfTen(arg.scale - expr.scale);
        const std::string above = divisor.substr(0, divisor.size() - 1) + '1';
        // Twice the rest, one more when the quotient is odd: that reaches divisor + 1 just where half to even goes up.
        exact = value + " / " + divisor + " + (2 * (" + value + " % " + divisor + ") + " + value + " / " + divisor +
                " % 2) / " + above;
    }
    return "CASE typeof(" + Value(arg) + ") WHEN 'real' THEN " + RaiseOverflow + " ELSE " + exact + " END";
}

std::string ExprEmitter::ColumnName(const BoundExpr& column) const {
    const BoundTable& table = tables_[static_cast<size_t>(column.table)];
    const std::string name = Quoted(table.table->columns[column.column].name);
    return tables_.size() == 1 ? name : Quoted(table.name) + '.' + name;
}

}  // namespace store::sqlite
