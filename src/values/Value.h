#pragma once

#include <QDate>
#include <QString>
#include <QTime>
#include <variant>

#include "values/Money.h"

namespace values {

// A typed value or null, as a field of a store gives and takes it.
//
// Conversions follow the field's use on a screen: a text is read in the user's locale (Numbers.h, DateText.h), a
// value becomes text "as it comes" (NumberText, DateText, TimeText, "True" and "False"). A conversion of null throws
// Error 94, one that makes no sense Error 13, one that leaves the range Error 6.
class Value {
public:
    enum class Kind { Null, Text, Whole, Money, Double, Date, Time, YesNo };

    Value() = default;
    Value(const QString& text) : data_(text) {}
    Value(QString&& text) : data_(std::move(text)) {}
    Value(int whole) : data_(qint64{whole}) {}
    Value(qint16 whole) : data_(qint64{whole}) {}
    Value(qint64 whole) : data_(whole) {}
    Value(values::Money money) : data_(money) {}
    Value(double number) : data_(number) {}
    Value(QDate date) : data_(date) {}
    Value(QTime time) : data_(time) {}
    Value(bool yes) : data_(yes) {}
    Value(const char*) = delete;

    Kind GetKind() const { return static_cast<Kind>(data_.index()); }
    bool IsNull() const { return data_.index() == 0; }

    QString ToText() const;
    // As ToText, with "" for null: for list cells and other places that show what there is.
    QString TextOrEmpty() const;
    values::Money ToMoney() const;
    double ToDouble() const;
    qint64 ToWhole() const;  // halves to even
    bool ToBool() const;
    QDate ToDate() const;
    QTime ToTime() const;

    // The value as it lies here, without conversion; the kind must fit.
    template <typename T>
    const T& As() const {
        return std::get<T>(data_);
    }

    bool operator==(const Value&) const = default;

private:
    std::variant<std::monostate, QString, qint64, values::Money, double, QDate, QTime, bool> data_;
};

}  // namespace values
