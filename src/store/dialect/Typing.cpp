#include "store/dialect/Typing.h"

#include "store/Words.h"

namespace store::dialect {

using Form = BoundExpr::Form;

namespace {

constexpr int FieldScale = 4;
constexpr int ProductScale = 8;

QString NameOf(Type type) {
    switch (type) {
        case Type::Text:
            return Words::tr("a text");
        case Type::Date:
            return Words::tr("a date");
        case Type::Time:
            return Words::tr("a time");
        case Type::Null:
            //: an empty field, as query texts have it
            return Words::tr("null");
        case Type::YesNo:
            return Words::tr("yes or no");
        default:
            return Words::tr("a number");
    }
}

bool IsNull(const BoundExpr& expr) {
    return expr.type == Type::Null;
}
bool IsNumberOrNull(const BoundExpr& expr) {
    return IsNumber(expr.type) || IsNull(expr);
}
bool IsTextOrNull(const BoundExpr& expr) {
    return expr.type == Type::Text || IsNull(expr);
}

// `words` is a sentence of %1 and %2, the names of the types.
[[noreturn]] void FailUnlike(Type a, Type b, const QString& words, Span span, const Complaint& fail) {
    QString sentence = words.arg(NameOf(a), NameOf(b));
    sentence.front() = sentence.front().toUpper();
    fail(values::TypeMismatch, span, sentence);
}

BoundPtr Retargeted(const BoundExpr& literal, Target target, Type type, int scale) {
    BoundExpr changed = literal;
    changed.target = target;
    changed.type = type;
    changed.scale = scale;
    return Make(std::move(changed));
}

BoundPtr Around(Form form, const BoundPtr& arg, Type type, int scale = 0) {
    return Make({.form = form, .type = type, .scale = scale, .span = arg->span, .args = {arg}});
}

BoundPtr Renegated(const BoundExpr& negate, const BoundPtr& operand) {
    return Make(
        {.form = Form::Negate, .type = operand->type, .scale = operand->scale, .span = negate.span, .args = {operand}});
}

BoundPtr ToScale(const BoundPtr& exact, int scale) {
    if (exact->scale >= scale || IsNull(*exact)) return exact;
    if (exact->form == Form::Negate) return Renegated(*exact, ToScale(exact->args.front(), scale));
    if (exact->form == Form::Literal && exact->scale == 0) {
        return ToScale(Retargeted(*exact, Target::Scaled, Type::Decimal, FieldScale), scale);
    }
    return Around(Form::Raise, exact, exact->scale == 0 ? Type::Decimal : exact->type, scale);
}

BoundPtr ToDouble(const BoundPtr& number) {
    if (number->type == Type::Double || IsNull(*number)) return number;
    if (number->form == Form::Negate) return Renegated(*number, ToDouble(number->args.front()));
    if (number->form == Form::Literal) return Retargeted(*number, Target::Double, Type::Double, 0);
    return number->scale == 0 ? number : Around(Form::ToDouble, number, Type::Double);
}

Type ExactType(const BoundExpr& left, const BoundExpr& right) {
    if (IsScaled(left.type)) return left.type;
    if (IsScaled(right.type)) return right.type;
    return IsNull(left) && IsNull(right) ? Type::Null : Type::Whole;
}

BoundPtr Binary(Op op, BoundPtr left, BoundPtr right, Type type, int scale, Span span) {
    return Make({.form = Form::Binary,
                 .type = type,
                 .scale = scale,
                 .span = span,
                 .args = {std::move(left), std::move(right)},
                 .op = op});
}

}  // namespace

BoundPtr Arithmetic(Op op, const BoundPtr& left, const BoundPtr& right, Span span, const Complaint& fail) {
    const bool texts = left->type == Type::Text || right->type == Type::Text;
    if (op == Op::Add && texts && IsTextOrNull(*left) && IsTextOrNull(*right)) {
        return Binary(op, left, right, Type::Text, 0, span);
    }
    if (!IsNumberOrNull(*left) || !IsNumberOrNull(*right)) {
        FailUnlike(left->type, right->type, Words::tr("%1 cannot be calculated with %2."), span, fail);
    }

    const bool tooFine = op == Op::Multiply && left->scale + right->scale > ProductScale;
    if (left->type == Type::Double || right->type == Type::Double || tooFine) {
        return Binary(op, ToDouble(left), ToDouble(right), Type::Double, 0, span);
    }
    const Type type = ExactType(*left, *right);
    if (op == Op::Multiply) return Binary(op, left, right, type, left->scale + right->scale, span);

    const int scale = std::max(left->scale, right->scale);
    const BoundPtr first = ToScale(left, scale);
    const BoundPtr second = ToScale(right, scale);
    // Of two numbers of one scale the quotient needs no division by it.
    if (op == Op::Divide) return Binary(op, first, second, Type::Double, 0, span);
    return Binary(op, first, second, type, scale, span);
}

BoundPtr Negation(const BoundPtr& operand, Span span, const Complaint& fail) {
    if (!IsNumberOrNull(*operand)) {
        fail(values::TypeMismatch, span, Words::tr("A minus cannot stand before %1.").arg(NameOf(operand->type)));
    }
    const Type type = operand->type == Type::YesNo ? Type::Whole : operand->type;
    return Make({.form = Form::Negate, .type = type, .scale = operand->scale, .span = span, .args = {operand}});
}

namespace {

// A number written into the text is text from the start; of the others the engine can write only these.
BoundPtr AsText(const BoundPtr& value, const Complaint& fail) {
    if (IsTextOrNull(*value)) return value;
    if (value->form == Form::Literal) return Retargeted(*value, Target::Text, Type::Text, 0);
    if (value->type == Type::Whole || value->type == Type::YesNo) return Around(Form::ToText, value, Type::Text);
    fail(NotSupported, value->span, Words::tr("A query cannot turn %1 into a text.").arg(NameOf(value->type)));
}

}  // namespace

BoundPtr TextJoin(const BoundPtr& left, const BoundPtr& right, Span span, const Complaint& fail) {
    return Binary(Op::Join, AsText(left, fail), AsText(right, fail), Type::Text, 0, span);
}

std::vector<BoundPtr> Comparable(std::vector<BoundPtr> operands, Span span, const Complaint& fail) {
    bool anyDouble = false;
    int scale = 0;
    const BoundExpr* first = nullptr;
    for (const BoundPtr& operand : operands) {
        if (IsNull(*operand)) continue;
        if (!first) first = operand.get();
        const bool numbers = IsNumber(first->type) && IsNumber(operand->type);
        if (!numbers && first->type != operand->type) {
            FailUnlike(first->type, operand->type, Words::tr("%1 cannot be compared with %2."), span, fail);
        }
        anyDouble |= operand->type == Type::Double;
        scale = std::max(scale, operand->scale);
    }
    if (!first || !IsNumber(first->type)) return operands;
    for (BoundPtr& operand : operands) operand = anyDouble ? ToDouble(operand) : ToScale(operand, scale);
    return operands;
}

BoundPtr Like(const BoundPtr& text, const BoundPtr& pattern, bool negated, Span span, const Complaint& fail) {
    for (const BoundPtr& operand : {text, pattern}) {
        if (IsTextOrNull(*operand)) continue;
        fail(values::TypeMismatch, operand->span,
             Words::tr("LIKE compares texts, and this is %1.").arg(NameOf(operand->type)));
    }
    const bool literal = pattern->form == Form::Literal;
    const BoundPtr wanted = literal ? Retargeted(*pattern, Target::Pattern, Type::Text, 0) : pattern;
    return Make({.form = Form::Like, .type = Type::YesNo, .span = span, .args = {text, wanted}, .negated = negated});
}

BoundPtr ValOf(const BoundPtr& arg, Span span, const Complaint& fail) {
    if (!IsTextOrNull(*arg) && !IsNumber(arg->type)) {
        fail(values::TypeMismatch, arg->span, Words::tr("Val reads a text, and this is %1.").arg(NameOf(arg->type)));
    }
    const BoundPtr operand = IsNumber(arg->type) ? ToDouble(arg) : arg;
    return Make({.form = Form::Val, .type = Type::Double, .span = span, .args = {operand}});
}

BoundPtr Summed(const BoundPtr& arg, Span span, const Complaint& fail) {
    if (!IsNumberOrNull(*arg)) {
        fail(values::TypeMismatch, arg->span, Words::tr("Sum adds numbers, and this is %1.").arg(NameOf(arg->type)));
    }
    const Type type = arg->type == Type::YesNo ? Type::Whole : arg->type;
    return Make({.form = Form::Sum, .type = type, .scale = arg->scale, .span = span, .args = {arg}});
}

void RequireCondition(const BoundExpr& expr, const Complaint& fail) {
    if (IsNumberOrNull(expr)) return;
    fail(values::TypeMismatch, expr.span, Words::tr("Expected a condition; this is %1.").arg(NameOf(expr.type)));
}

namespace {

struct Stored {
    Target target;
    int scale;
};

Stored StoredAs(Type type) {
    switch (type) {
        case Type::Whole:
            return {Target::Whole, 0};
        case Type::Double:
            return {Target::Double, 0};
        case Type::Date:
            return {Target::Date, 0};
        case Type::Time:
            return {Target::Time, 0};
        case Type::YesNo:
            return {Target::YesNo, 0};
        case Type::Money:
        case Type::Decimal:
        case Type::Quantity:
            return {Target::Scaled, FieldScale};
        default:
            return {Target::Text, 0};
    }
}

bool LiteralFits(Type literal, Type column) {
    if (literal == Type::Text || literal == column || column == Type::Text) return true;
    return IsNumber(literal) && IsNumber(column);
}

BoundPtr AssignedNumber(const BoundPtr& value, Type type) {
    const Stored stored = StoredAs(type);
    if (type == Type::YesNo) return value->type == Type::YesNo ? value : Around(Form::StoreYesNo, value, type);
    if (type == Type::Double) return ToDouble(value);
    if (value->type == Type::Double) return Around(Form::StoreDouble, value, type, stored.scale);
    const BoundPtr raised = ToScale(value, stored.scale);
    const bool simple = raised->form == Form::Column || raised->form == Form::Constant;
    return simple && raised->scale == stored.scale ? raised : Around(Form::StoreExact, raised, type, stored.scale);
}

}  // namespace

BoundPtr Assigned(const BoundPtr& value, const Column& column, const Complaint& fail) {
    const Type type = column.type;
    if (IsNull(*value)) return value;
    if (value->form == Form::Literal && LiteralFits(value->type, type)) {
        const Stored stored = StoredAs(type);
        return Retargeted(*value, stored.target, type, stored.scale);
    }
    const bool negatedNumber = value->form == Form::Negate && value->args.front()->form == Form::Literal;
    if (negatedNumber && type != Type::Text && type != Type::YesNo && LiteralFits(value->type, type)) {
        return Renegated(*value, Assigned(value->args.front(), column, fail));
    }
    if (type == Type::Text) return AsText(value, fail);
    if (IsNumber(type) && IsNumber(value->type)) return AssignedNumber(value, type);
    if (value->type == type) return value;
    FailUnlike(value->type, type, Words::tr("%1 cannot be written to a field that holds %2."), value->span, fail);
}

}  // namespace store::dialect
