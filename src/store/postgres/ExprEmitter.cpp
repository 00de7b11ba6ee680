#include "store/postgres/ExprEmitter.h"

#include <algorithm>

#include "store/SqlText.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

using dialect::Aliased;
using dialect::ConstantExpr;
using dialect::IsCondition;
using dialect::Op;
using dialect::Target;
using Form = BoundExpr::Form;

namespace {

// Texts are ordered by their bytes after folding, whatever the database's own order.
constexpr const char* ByBytes = " COLLATE \"C\"";

std::string PowerOfTen(int exponent) {
    std::string power(static_cast<size_t>(exponent) + 1, '0');
    power.front() = '1';
    return power;
}

Type TypeOf(Target target) {
    switch (target) {
        case Target::Text:
        case Target::Pattern:
            return Type::Text;
        case Target::Double:
            return Type::Double;
        default:
            return Type::Whole;
    }
}

std::string Call(const char* function, const std::string& argument) {
    return function + ('(' + argument + ')');
}

// What has no type is null; an aggregate of it still makes one row of all.
std::string NullSql(const BoundExpr& expr, Type type) {
    const std::string null = std::string("NULL::") + TypeSql(type);
    return HoldsAggregate(expr) ? Call("max", null) : null;
}

Type CommonType(const BoundExpr& expr) {
    const bool hasText = std::ranges::any_of(expr.args, [](const BoundPtr& arg) { return arg->type == Type::Text; });
    return hasText ? Type::Text : Type::Whole;
}

// What may outgrow 64 bits on the way is calculated without a bound.
std::string Unbounded(const std::string& number) {
    return number + "::numeric";
}

}  // namespace

std::string FoldedColumn(const QString& column) {
    return Quoted(column + u"_folded"_s);
}

const char* TypeSql(Type type) {
    if (type == Type::Text) return "text";
    return type == Type::Double ? "double precision" : "bigint";
}

std::string ExprEmitter::ColumnSql(const BoundExpr& column, bool folded) const {
    const BoundTable& table = tables_[static_cast<size_t>(column.table)];
    const QString& name = table.table->columns[column.column].name;
    const std::string sql = folded ? FoldedColumn(name) : Quoted(name);
    return tables_.size() == 1 ? sql : Quoted(table.name) + '.' + sql;
}

std::string ExprEmitter::ParameterSql(const BoundExpr& literal, bool folded) {
    const Slot slot{literal.literal, folded};
    auto found = std::ranges::find(slots_, slot);
    if (found == slots_.end()) found = slots_.insert(found, slot);
    const Type type = TypeOf(literal.target);
    return "($" + std::to_string(found - slots_.begin() + 1) + "::" + TypeSql(type) +
           (type == Type::Text ? ByBytes : "") + ')';
}

bool ExprEmitter::IsGrouped(const BoundExpr& expr) const {
    return groups_ != nullptr &&
           std::ranges::any_of(*groups_, [&expr](const BoundPtr& group) { return Same(*group, expr); });
}

// Of the texts that are one to a group any may stand for it.
std::string ExprEmitter::Value(const BoundExpr& expr, Type untyped) {
    if (expr.type == Type::Null) return NullSql(expr, untyped);
    if (IsGrouped(expr)) {
        const auto* groups = std::exchange(groups_, nullptr);
        const std::string value = Value(expr);
        groups_ = groups;
        return expr.type == Type::Text ? Call("min", value + ByBytes) : value;
    }
    if (IsCondition(expr)) return "(-(" + Condition(expr) + ")::integer)::bigint";
    const auto arg = [&]() -> const BoundExpr& { return *expr.args.front(); };
    switch (expr.form) {
        case Form::Column:
            return ColumnSql(expr, false);
        case Form::Literal:
            return ParameterSql(expr, false);
        case Form::Constant:
            return expr.constant == ConstantExpr::True ? "(-1)::bigint" : "0::bigint";
        case Form::Alias:
            return Value(arg());
        case Form::Negate:
            return "(-" +
                   (expr.type == Type::Double || arg().form == Form::Literal ? Value(arg()) : Unbounded(Value(arg()))) +
                   ')';
        case Form::Binary:
            return Arithmetic(expr);
        case Form::Val:  // a cast would bear the column's own name, by which ORDER BY would find it
            return Call(IsNumber(arg().type) ? "float8" : "velton_val", Value(arg(), Type::Text));
        case Form::Sum:
        case Form::Max:
        case Form::Min:
        case Form::Count:
            return Aggregate(expr);
        case Form::Raise:
            return '(' + Unbounded(Value(arg())) + " * " + PowerOfTen(expr.scale - arg().scale) + ')';
        case Form::ToDouble:
            return '(' + Value(arg()) + "::double precision / " + PowerOfTen(arg().scale) + "::double precision)";
        default:
            return Stored(expr);
    }
}

std::string ExprEmitter::Key(const BoundExpr& expr, Type untyped) {
    if (expr.type != Type::Text) return Value(expr, untyped);
    const BoundExpr& inner = Aliased(expr);
    if (inner.form == Form::Column) return ColumnSql(inner, true);
    if (inner.form == Form::Literal) return ParameterSql(inner, true);
    const auto* groups = IsGrouped(inner) ? std::exchange(groups_, nullptr) : groups_;
    const std::string key = Call("velton_fold", Value(inner) + ByBytes);
    groups_ = groups;
    return key;
}

std::string ExprEmitter::Condition(const BoundExpr& expr) {
    if (IsGrouped(expr)) return '(' + Value(expr) + " <> 0)";
    const auto arg = [&expr](size_t position) -> const BoundExpr& { return *expr.args[position]; };
    switch (expr.form) {
        case Form::Alias:
            return Condition(arg(0));
        case Form::Not:
            return "(NOT " + Condition(arg(0)) + ')';
        case Form::Like:
            return Like(expr);
        case Form::Between:
        case Form::In:
            return Compared(expr);
        case Form::IsNull:
            return '(' + Value(arg(0)) + " IS" + (expr.negated ? " NOT" : "") + " NULL)";
        case Form::Binary: {
            if (!IsCondition(expr)) break;
            if (expr.op != Op::And && expr.op != Op::Or) return Compared(expr);
            return '(' + Condition(arg(0)) + (expr.op == Op::And ? " AND " : " OR ") + Condition(arg(1)) + ')';
        }
        default:
            break;
    }
    return '(' + Value(expr) + " <> 0)";
}

std::string ExprEmitter::Compared(const BoundExpr& expr) {
    const Type untyped = CommonType(expr);
    const auto arg = [&](size_t position) { return Key(*expr.args[position], untyped); };
    const std::string negation = expr.negated ? " NOT" : "";
    if (expr.form == Form::Between) return '(' + arg(0) + negation + " BETWEEN " + arg(1) + " AND " + arg(2) + ')';
    if (expr.form == Form::Binary) {
        const QLatin1StringView sign = SignOf(expr.op);
        return '(' + arg(0) + ' ' + std::string(sign.begin(), sign.end()) + ' ' + arg(1) + ')';
    }
    std::string list;
    for (size_t i = 1; i < expr.args.size(); ++i) AppendTo(list, arg(i));
    return '(' + arg(0) + negation + " IN (" + list + "))";
}

// The pattern becomes one of the server's own, for its LIKE or, behind a ~, its regular expressions. Each SELECT is
// made once a statement, not for every row, where the pattern is a literal.
std::string ExprEmitter::Like(const BoundExpr& expr) {
    const std::string text = Key(*expr.args[0], Type::Text);
    const std::string pattern = "velton_pattern(" + Value(*expr.args[1], Type::Text) + ')';
    const std::string behind = "(SELECT substr(" + pattern + ", 2))";
    return std::string(expr.negated ? "(NOT " : "(") + "CASE WHEN (SELECT left(" + pattern + ", 1) = '~') THEN " +
           text + " ~ " + behind + " ELSE " + text + " LIKE " + behind + " END)";
}

std::string ExprEmitter::Aggregate(const BoundExpr& expr) {
    if (expr.args.empty()) return "count(*)";
    const auto* groups = std::exchange(groups_, nullptr);
    const BoundExpr& arg = *expr.args.front();
    std::string sql;
    switch (expr.form) {
        case Form::Sum:
            sql = Call("sum", Value(arg));
            if (arg.type != Type::Double) sql += "::bigint";
            break;
        case Form::Count:
            sql = Call("count", Value(arg));
            break;
        default:
            sql =
                arg.type == Type::Text ? TextAggregate(expr) : Call(expr.form == Form::Max ? "max" : "min", Value(arg));
    }
    groups_ = groups;
    return '(' + sql + ')';
}

// The server knows texts by their bytes alone.
std::string ExprEmitter::TextAggregate(const BoundExpr& expr) {
    const BoundExpr& arg = *expr.args.front();
    const std::string text = Value(arg);
    return "(array_agg(" + text + " ORDER BY " + Key(arg) + (expr.form == Form::Max ? " DESC, " : ", ") + text +
           ByBytes + ") FILTER (WHERE " + text + " IS NOT NULL))[1]";
}

std::string ExprEmitter::Arithmetic(const BoundExpr& expr) {
    const BoundExpr& left = *expr.args[0];
    const BoundExpr& right = *expr.args[1];
    const auto with = [&](const char* sign) {
        const bool isExact = expr.type != Type::Double;
        return '(' + (isExact ? Unbounded(Value(left)) : Value(left)) + sign + Value(right) + ')';
    };
    switch (expr.op) {
        case Op::Join:
            return '(' + JoinedText(left) + " || " + JoinedText(right) + ')';
        case Op::Add:
            if (expr.type == Type::Text) return '(' + Value(left, Type::Text) + " || " + Value(right, Type::Text) + ')';
            return with(" + ");
        case Op::Subtract:
            return with(" - ");
        case Op::Multiply:
            return with(" * ");
        default:
            return '(' + Value(left) + "::double precision / NULLIF(" + Value(right) + "::double precision, 0))";
    }
}

// One side of &, for which null is an empty text.
std::string ExprEmitter::JoinedText(const BoundExpr& expr) {
    return "COALESCE(" + Value(expr, Type::Text) + ", '')";
}

std::string ExprEmitter::Stored(const BoundExpr& expr) {
    const BoundExpr& arg = *expr.args.front();
    const std::string value = Value(arg);
    switch (expr.form) {
        case Form::ToText:
            if (arg.type == Type::Whole) return value + "::text";
            return "(CASE " + value + " WHEN 0 THEN 'False' WHEN -1 THEN 'True' END)";
        case Form::StoreYesNo:
            return "(-(" + value + " <> 0)::integer)::bigint";
        case Form::StoreDouble:
            return "velton_scaled(" + value + "::double precision, " + PowerOfTen(expr.scale) + ')';
        default:
            if (arg.scale <= expr.scale) return value + "::bigint";
            return "velton_rounded(" + value + "::bigint, " + PowerOfTen(arg.scale - expr.scale) + ')';
    }
}

}  // namespace store::postgres
