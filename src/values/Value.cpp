#include "values/Value.h"

#include <cmath>

#include "values/DateText.h"
#include "values/Decimal.h"
#include "values/Error.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

// Two to the power of 63, the first double that is too large for a whole number.
constexpr double WholeLimit = 9223372036854775808.0;

qint64 WholeOf(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= -WholeLimit && rounded < WholeLimit)) ThrowOverflow();
    return static_cast<qint64>(rounded);
}

qint64 WholeOf(const QString& text) {
    const auto decimal = Decimal::Read(text);
    if (!decimal) ThrowTypeMismatch();
    return decimal->ToUnits(0);
}

}  // namespace

QString Value::ToText() const {
    switch (GetKind()) {
        case Kind::Null:
            ThrowInvalidUseOfNull();
        case Kind::Text:
            return As<QString>();
        case Kind::Whole:
            return NumberText(As<qint64>());
        case Kind::Money:
            return NumberText(As<values::Money>());
        case Kind::Double:
            return NumberText(As<double>());
        case Kind::Date:
            return DateText(As<QDate>());
        case Kind::Time:
            return TimeText(As<QTime>());
        case Kind::YesNo:
            return As<bool>() ? u"True"_s : u"False"_s;
    }
    Q_UNREACHABLE();
}

QString Value::TextOrEmpty() const {
    return IsNull() ? QString() : ToText();
}

Money Value::ToMoney() const {
    switch (GetKind()) {
        case Kind::Null:
            ThrowInvalidUseOfNull();
        case Kind::Text:
            return CMoney(As<QString>());
        case Kind::Whole:
            return Money::FromWhole(As<qint64>());
        case Kind::Money:
            return As<values::Money>();
        case Kind::Double:
            return Money::FromDouble(As<double>());
        case Kind::YesNo:
            return Money::FromWhole(As<bool>() ? -1 : 0);
        case Kind::Date:
        case Kind::Time:
            break;
    }
    ThrowTypeMismatch();
}

double Value::ToDouble() const {
    switch (GetKind()) {
        case Kind::Null:
            ThrowInvalidUseOfNull();
        case Kind::Text:
            return CDouble(As<QString>());
        case Kind::Whole:
            return static_cast<double>(As<qint64>());
        case Kind::Money:
            return As<values::Money>().ToDouble();
        case Kind::Double:
            return As<double>();
        case Kind::YesNo:
            return As<bool>() ? -1 : 0;
        case Kind::Date:
        case Kind::Time:
            break;
    }
    ThrowTypeMismatch();
}

qint64 Value::ToWhole() const {
    switch (GetKind()) {
        case Kind::Null:
            ThrowInvalidUseOfNull();
        case Kind::Text:
            return WholeOf(As<QString>());
        case Kind::Whole:
            return As<qint64>();
        case Kind::Money:
            return Decimal::FromUnits(As<values::Money>().Units(), 4).ToUnits(0);
        case Kind::Double:
            return WholeOf(As<double>());
        case Kind::YesNo:
            return As<bool>() ? -1 : 0;
        case Kind::Date:
        case Kind::Time:
            break;
    }
    ThrowTypeMismatch();
}

bool Value::ToBool() const {
    switch (GetKind()) {
        case Kind::Null:
            ThrowInvalidUseOfNull();
        case Kind::Text:
            return CBool(As<QString>());
        case Kind::Whole:
            return As<qint64>() != 0;
        case Kind::Money:
            return As<values::Money>() != values::Money();
        case Kind::Double:
            return As<double>() != 0;
        case Kind::YesNo:
            return As<bool>();
        case Kind::Date:
        case Kind::Time:
            break;
    }
    ThrowTypeMismatch();
}

QDate Value::ToDate() const {
    if (IsNull()) ThrowInvalidUseOfNull();
    if (GetKind() == Kind::Date) return As<QDate>();
    const auto date = GetKind() == Kind::Text ? ReadDate(As<QString>()) : std::nullopt;
    if (!date) ThrowTypeMismatch();
    return *date;
}

QTime Value::ToTime() const {
    if (IsNull()) ThrowInvalidUseOfNull();
    if (GetKind() == Kind::Time) return As<QTime>();
    const auto time = GetKind() == Kind::Text ? ReadTime(As<QString>()) : std::nullopt;
    if (!time) ThrowTypeMismatch();
    return *time;
}

}  // namespace values
