#include "store/Conversion.h"

#include <cmath>

#include "store/Words.h"

namespace store {

using dialect::BoundValue;
using values::Value;

namespace {

// The usual conversion drops a byte order mark at the start, but what was stored is what must come back.
QString FromUtf8(QByteArrayView text) {
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    const bool mayHaveMark = !text.empty() && text[0] == mark[0];
    if (!mayHaveMark || !text.startsWith(mark)) return QString::fromUtf8(text);
    return QChar(QChar::ByteOrderMark) + QString::fromUtf8(text.sliced(mark.size()));
}

constexpr int MoneyDecimals = 4;

// An exact number of so many decimals as a double.
double Unscaled(double number, int scale) {
    return scale == 0 ? number : number / std::pow(10.0, scale);
}

qint64 ToJulianDay(QDate date) {
    if (!date.isValid()) throw StoreError(ConversionFailed, Words::tr("No valid date."));
    return date.toJulianDay();
}

qint64 ToSeconds(QTime time) {
    if (!time.isValid()) throw StoreError(ConversionFailed, Words::tr("No valid time."));
    return time.msecsSinceStartOfDay() / 1000;
}

BoundValue Convert(const Value& value, Type type) {
    switch (type) {
        case Type::Null:
            return {};
        case Type::Text:
            return value.ToText().toUtf8();
        case Type::Whole:
            return value.ToWhole();
        case Type::Money:
        case Type::Decimal:
        case Type::Quantity:
            return value.ToMoney().Units();
        case Type::Double:
            return value.ToDouble();
        case Type::Date:
            return ToJulianDay(value.ToDate());
        case Type::Time:
            return ToSeconds(value.ToTime());
        case Type::YesNo:
            return qint64{value.ToBool() ? -1 : 0};
    }
    return {};
}

Value FromInteger(qint64 integer, Type type, int scale) {
    switch (type) {
        case Type::Null:
            return {};
        case Type::Text:
            return QString::number(integer);
        case Type::Whole:
            return integer;
        case Type::Money:
        case Type::Decimal:
        case Type::Quantity:
            if (scale > MoneyDecimals) return Unscaled(static_cast<double>(integer), scale);
            return values::Money::FromUnits(integer);
        case Type::Double:
            return Unscaled(static_cast<double>(integer), scale);
        case Type::Date:
            return QDate::fromJulianDay(integer);
        case Type::Time:
            return QTime(0, 0).addSecs(static_cast<int>(integer));
        case Type::YesNo:
            return integer != 0;
    }
    return {};
}

// A computed number that no longer fitted an integer, or never was one.
Value FromReal(double real, Type type, int scale) {
    if (!IsScaled(type) || scale > MoneyDecimals) return Unscaled(real, scale);
    return values::Money::FromDouble(real / static_cast<double>(values::Money::Scale));
}

}  // namespace

BoundValue ToStored(const Value& value, Type type) {
    if (value.IsNull()) return {};
    try {
        return Convert(value, type);
    } catch (const values::Error& error) {
        if (error.Number() != values::TypeMismatch) throw;
        throw StoreError(ConversionFailed, Words::tr("The value does not fit the type of the field."));
    }
}

Value FromStored(const RowBlock& rows, const RowBlock::Cell& cell, const dialect::OutputColumn& column) {
    using Kind = RowBlock::Cell::Kind;
    switch (cell.kind) {
        case Kind::Integer:
            return FromInteger(cell.integer, column.type, column.scale);
        case Kind::Text:
            return FromUtf8(rows.Text(cell));
        case Kind::Real:
            return FromReal(cell.real, column.type, column.scale);
        case Kind::Null:
        case Kind::Gone:
            break;
    }
    return {};
}

Value FromStored(const BoundValue& stored, Type type) {
    if (const auto* text = std::get_if<QByteArray>(&stored)) return FromUtf8(*text);
    if (const auto* integer = std::get_if<qint64>(&stored)) return FromInteger(*integer, type, 0);
    if (const auto* real = std::get_if<double>(&stored)) return *real;
    return {};
}

}  // namespace store
