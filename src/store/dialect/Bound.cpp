#include "store/dialect/Bound.h"

#include <algorithm>

namespace store::dialect {

using Form = BoundExpr::Form;

BoundPtr Make(BoundExpr expr) {
    for (const BoundPtr& arg : expr.args) {
        expr.depth = std::max(expr.depth, arg->depth + 1);
        expr.nodes += arg->nodes;
    }
    return std::make_shared<const BoundExpr>(std::move(expr));
}

const BoundExpr& Aliased(const BoundExpr& expr) {
    const BoundExpr* inner = &expr;
    while (inner->form == Form::Alias) inner = inner->args.front().get();
    return *inner;
}

bool IsAggregate(const BoundExpr& expr) {
    return expr.form == Form::Sum || expr.form == Form::Max || expr.form == Form::Min || expr.form == Form::Count;
}

bool HoldsAggregate(const BoundExpr& expr) {
    return IsAggregate(expr) ||
           std::any_of(expr.args.begin(), expr.args.end(), [](const BoundPtr& arg) { return HoldsAggregate(*arg); });
}

bool IsCondition(const BoundExpr& expr) {
    switch (expr.form) {
        case Form::Not:
        case Form::Like:
        case Form::Between:
        case Form::In:
        case Form::IsNull:
            return true;
        case Form::Binary:
            return LevelOf(expr.op) <= Level::Compare;
        default:
            return false;
    }
}

bool Same(const BoundExpr& a, const BoundExpr& b) {
    const BoundExpr& left = Aliased(a);
    const BoundExpr& right = Aliased(b);
    if (left.form != right.form || left.args.size() != right.args.size() || left.scale != right.scale) return false;
    if (left.table != right.table || left.column != right.column || left.literal != right.literal) return false;
    if (left.constant != right.constant || left.op != right.op || left.negated != right.negated) return false;
    return std::equal(left.args.begin(), left.args.end(), right.args.begin(),
                      [](const BoundPtr& one, const BoundPtr& other) { return Same(*one, *other); });
}

}  // namespace store::dialect
