#include "store/dialect/ExprBinder.h"

#include <algorithm>

#include "store/Words.h"
#include "store/dialect/Limits.h"
#include "store/dialect/NearNames.h"
#include "store/dialect/Typing.h"

using namespace Qt::StringLiterals;

namespace store::dialect {

namespace {

Target TargetOf(const LiteralExpr& literal) {
    switch (literal.type) {
        case Type::Whole:
            return Target::Whole;
        case Type::Decimal:
            return Target::Scaled;
        case Type::Double:
            return Target::Double;
        case Type::Date:
            return Target::Date;
        default:
            return Target::Text;
    }
}

}  // namespace

BoundPtr ExprBinder::Bind(const ExprPtr& expr, const Clause& clause) {
    BoundPtr bound = std::visit([&](const auto& node) { return Node(node, expr->span, clause); }, expr->node);
    // An alias counts as all that it stands for, so a chain of them may grow beyond what was written.
    if (bound->depth > MaxDepth || bound->nodes > MaxNodes) {
        fail_(SyntaxError, expr->span, Words::tr("The expression is too complex."));
    }
    return bound;
}

BoundPtr ExprBinder::BindCondition(const ExprPtr& expr, const Clause& clause) {
    if (!expr) return nullptr;
    BoundPtr bound = Bind(expr, clause);
    RequireCondition(*bound, fail_);
    return bound;
}

std::vector<BoundPtr> ExprBinder::BindList(const std::vector<ExprPtr>& list, const Clause& clause) {
    std::vector<BoundPtr> bound;
    bound.reserve(list.size());
    for (const ExprPtr& expr : list) bound.push_back(Bind(expr, clause));
    return bound;
}

BoundPtr ExprBinder::Node(const NameExpr& name, Span span, const Clause& clause) {
    return scope_.Find(name, span, clause.aliases);
}

BoundPtr ExprBinder::Node(const LiteralExpr& literal, Span span, const Clause&) {
    return Make({.form = Form::Literal,
                 .type = literal.type,
                 .scale = IsScaled(literal.type) ? 4 : 0,
                 .span = span,
                 .literal = literal.index,
                 .target = TargetOf(literal)});
}

BoundPtr ExprBinder::Node(const ConstantExpr& constant, Span span, const Clause&) {
    const Type type = constant == ConstantExpr::Null ? Type::Null : Type::YesNo;
    return Make({.form = Form::Constant, .type = type, .span = span, .constant = constant});
}

BoundPtr ExprBinder::Node(const NegateExpr& negate, Span span, const Clause& clause) {
    return Negation(Bind(negate.operand, clause), span, fail_);
}

BoundPtr ExprBinder::Node(const NotExpr& inversion, Span span, const Clause& clause) {
    return Make(
        {.form = Form::Not, .type = Type::YesNo, .span = span, .args = {BindCondition(inversion.operand, clause)}});
}

BoundPtr ExprBinder::Node(const BinaryExpr& binary, Span span, const Clause& clause) {
    const Level level = LevelOf(binary.op);
    const bool logical = level < Level::Compare;
    BoundPtr left = logical ? BindCondition(binary.left, clause) : Bind(binary.left, clause);
    BoundPtr right = logical ? BindCondition(binary.right, clause) : Bind(binary.right, clause);
    if (level > Level::Join) return Arithmetic(binary.op, left, right, span, fail_);
    if (level == Level::Join) return TextJoin(left, right, span, fail_);

    std::vector<BoundPtr> operands = {std::move(left), std::move(right)};
    if (!logical) operands = Comparable(std::move(operands), span, fail_);
    return Make(
        {.form = Form::Binary, .type = Type::YesNo, .span = span, .args = std::move(operands), .op = binary.op});
}

BoundPtr ExprBinder::Node(const LikeExpr& like, Span span, const Clause& clause) {
    const BoundPtr text = Bind(like.text, clause);
    return Like(text, Bind(like.pattern, clause), like.negated, span, fail_);
}

BoundPtr ExprBinder::Node(const BetweenExpr& between, Span span, const Clause& clause) {
    std::vector<BoundPtr> operands = {Bind(between.value, clause), Bind(between.low, clause),
                                      Bind(between.high, clause)};
    return Make({.form = Form::Between,
                 .type = Type::YesNo,
                 .span = span,
                 .args = Comparable(std::move(operands), span, fail_),
                 .negated = between.negated});
}

BoundPtr ExprBinder::Node(const InExpr& in, Span span, const Clause& clause) {
    std::vector<BoundPtr> operands = BindList(in.list, clause);
    operands.insert(operands.begin(), Bind(in.value, clause));
    return Make({.form = Form::In,
                 .type = Type::YesNo,
                 .span = span,
                 .args = Comparable(std::move(operands), span, fail_),
                 .negated = in.negated});
}

BoundPtr ExprBinder::Node(const IsNullExpr& isNull, Span span, const Clause& clause) {
    return Make({.form = Form::IsNull,
                 .type = Type::YesNo,
                 .span = span,
                 .args = {Bind(isNull.value, clause)},
                 .negated = isNull.negated});
}

BoundPtr ExprBinder::Node(const CallExpr& call, Span span, const Clause& clause) {
    const Form form = FunctionOf(call);
    if (call.star ? form != Form::Count : call.arguments.size() != 1) {
        fail_(SyntaxError, span, Words::tr("%1 takes one argument.").arg(call.function));
    }
    if (form != Form::Val) return Aggregate(form, call, span, clause);
    return ValOf(Bind(call.arguments.front(), clause), span, fail_);
}

ExprBinder::Form ExprBinder::FunctionOf(const CallExpr& call) const {
    static const std::pair<QString, Form> functions[] = {
        {u"Sum"_s, Form::Sum},     {u"Max"_s, Form::Max}, {u"Min"_s, Form::Min},
        {u"Count"_s, Form::Count}, {u"Val"_s, Form::Val},
    };
    QStringList known;
    for (const auto& [name, form] : functions) {
        if (name.compare(call.function, Qt::CaseInsensitive) == 0) return form;
        known += name;
    }
    fail_(SyntaxError, call.functionSpan, Words::tr("There is no function %1.").arg(call.function),
          NearNames(call.function, known));
}

BoundPtr ExprBinder::Aggregate(Form form, const CallExpr& call, Span span, const Clause& clause) {
    if (!clause.aggregates)
        fail_(SyntaxError, span, Words::tr("%1 is not possible in %2.").arg(call.function, clause.name));
    sawAggregate_ = true;
    if (call.star) return Make({.form = form, .type = Type::Whole, .span = span});

    const BoundPtr arg = Bind(call.arguments.front(), clause);
    if (HoldsAggregate(*arg)) {
        fail_(SyntaxError, span, Words::tr("%1 cannot be taken over another aggregate.").arg(call.function));
    }
    if (form == Form::Sum) return Summed(arg, span, fail_);
    const bool count = form == Form::Count;
    return Make({.form = form,
                 .type = count ? Type::Whole : arg->type,
                 .scale = count ? 0 : arg->scale,
                 .span = span,
                 .args = {arg}});
}

}  // namespace store::dialect
