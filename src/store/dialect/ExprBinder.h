#pragma once

#include "store/dialect/Scope.h"

namespace store::dialect {

// What one clause lets its expressions do.
struct Clause {
    QStringView name;
    bool aliases;
    bool aggregates;
};

// Looks the names of expressions up and types them.
class ExprBinder {
public:
    ExprBinder(const Scope& scope, const Complaint& fail) : scope_(scope), fail_(fail) {}

    BoundPtr Bind(const ExprPtr& expr, const Clause& clause);
    // Null for none.
    BoundPtr BindCondition(const ExprPtr& expr, const Clause& clause);
    std::vector<BoundPtr> BindList(const std::vector<ExprPtr>& list, const Clause& clause);

    bool SawAggregate() const { return sawAggregate_; }

private:
    using Form = BoundExpr::Form;

    BoundPtr Node(const NameExpr& name, Span span, const Clause& clause);
    BoundPtr Node(const LiteralExpr& literal, Span span, const Clause& clause);
    BoundPtr Node(const ConstantExpr& constant, Span span, const Clause& clause);
    BoundPtr Node(const NegateExpr& negate, Span span, const Clause& clause);
    BoundPtr Node(const NotExpr& inversion, Span span, const Clause& clause);
    BoundPtr Node(const BinaryExpr& binary, Span span, const Clause& clause);
    BoundPtr Node(const LikeExpr& like, Span span, const Clause& clause);
    BoundPtr Node(const BetweenExpr& between, Span span, const Clause& clause);
    BoundPtr Node(const InExpr& in, Span span, const Clause& clause);
    BoundPtr Node(const IsNullExpr& isNull, Span span, const Clause& clause);
    BoundPtr Node(const CallExpr& call, Span span, const Clause& clause);

    Form FunctionOf(const CallExpr& call) const;
    BoundPtr Aggregate(Form form, const CallExpr& call, Span span, const Clause& clause);

    const Scope& scope_;
    const Complaint& fail_;
    bool sawAggregate_ = false;
};

}  // namespace store::dialect
