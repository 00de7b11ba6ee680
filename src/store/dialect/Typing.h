#pragma once

#include "store/dialect/Bound.h"
#include "store/dialect/Complaint.h"

// The types of operators and assignments. A literal takes the type that its neighbour asks for; anything else is
// converted by a node around it.
//
// Exact numbers have scale 0 (whole, yes/no), 4 (money and its like) or 8 (a product of two of them). Sums and
// comparisons align the scales; what would need a higher scale, a quotient, and whatever meets a double is a double.
// Operands of unlike types are error 13.
namespace store::dialect {

BoundPtr Arithmetic(Op op, const BoundPtr& left, const BoundPtr& right, Span span, const Complaint& fail);
BoundPtr Negation(const BoundPtr& operand, Span span, const Complaint& fail);
BoundPtr TextJoin(const BoundPtr& left, const BoundPtr& right, Span span, const Complaint& fail);
// The operands of one comparison (or BETWEEN, or IN), made comparable with each other.
std::vector<BoundPtr> Comparable(std::vector<BoundPtr> operands, Span span, const Complaint& fail);
BoundPtr Like(const BoundPtr& text, const BoundPtr& pattern, bool negated, Span span, const Complaint& fail);
// The number at the start of a text; a number is its own.
BoundPtr ValOf(const BoundPtr& arg, Span span, const Complaint& fail);
BoundPtr Summed(const BoundPtr& arg, Span span, const Complaint& fail);
void RequireCondition(const BoundExpr& expr, const Complaint& fail);

// A value as a field takes it. A literal is converted when it is bound; 3251 for a conversion that the engine cannot
// do.
BoundPtr Assigned(const BoundPtr& value, const Column& column, const Complaint& fail);

}  // namespace store::dialect
