#include "values/Format.h"

#include "values/DateText.h"
#include "values/Decimal.h"
#include "values/Digits.h"
#include "values/NumberForm.h"
#include "values/Numbers.h"

namespace values {

namespace {

// A text with more digits before the point is no number that anybody entered; writing it out would fill the memory.
constexpr qint64 MostWholeDigits = 309;

enum class PatternKind { General, Number, Date, Time };

PatternKind KindOf(QStringView pattern) {
    if (pattern.isEmpty()) return PatternKind::General;
    bool date = false;
    for (const QChar c : pattern) {
        const QChar letter = c.toLower();
        if (letter == u'h' || letter == u's') return PatternKind::Time;
        date = date || letter == u'd' || letter == u'm' || letter == u'y';
    }
    return date ? PatternKind::Date : PatternKind::Number;
}

// Every run of one letter goes to `addField`, all else stands as it is.
template <typename AddField>
QString WriteFields(QStringView pattern, AddField addField) {
    QString text;
    for (qsizetype at = 0; at < pattern.size();) {
        const QChar letter = pattern[at].toLower();
        qsizetype end = at + 1;
        while (end < pattern.size() && pattern[end].toLower() == letter) ++end;
        if (!addField(text, letter, static_cast<int>(end - at))) text += pattern.sliced(at, end - at);
        at = end;
    }
    return text;
}

QString FormatDecimal(const Decimal& decimal, QStringView pattern) {
    return KindOf(pattern) == PatternKind::Number ? PatternText(decimal, pattern)
                                                  : GeneralText(decimal, WholeDigitsOfExact);
}

QString FormatWhole(qint64 number, QStringView pattern) {
    return FormatDecimal(Decimal::FromUnits(number, 0), pattern);
}

}  // namespace

QString Format(double number, QStringView pattern) {
    return KindOf(pattern) == PatternKind::Number ? PatternText(Decimal::FromDouble(number), pattern)
                                                  : NumberText(number);
}

QString Format(Money number, QStringView pattern) {
    return FormatDecimal(Decimal::FromUnits(number.Units(), 4), pattern);
}

QString Format(QDate date, QStringView pattern) {
    if (KindOf(pattern) != PatternKind::Date || !date.isValid()) return DateText(date);
    return WriteFields(pattern, [date](QString& text, QChar letter, int width) {
        if (letter == u'd') {
            AddPadded(text, date.day(), width);
        } else if (letter == u'm') {
            AddPadded(text, date.month(), width);
        } else if (letter == u'y') {
            AddPadded(text, width > 2 ? date.year() : date.year() % 100, width);
        } else {
            return false;
        }
        return true;
    });
}

QString Format(QTime time, QStringView pattern) {
    if (KindOf(pattern) != PatternKind::Time || !time.isValid()) return TimeText(time);
    return WriteFields(pattern, [time](QString& text, QChar letter, int width) {
        if (letter == u'h') {
            AddPadded(text, time.hour(), width);
        } else if (letter == u'm') {
            AddPadded(text, time.minute(), width);
        } else if (letter == u's') {
            AddPadded(text, time.second(), width);
        } else {
            return false;
        }
        return true;
    });
}

QString Format(const QString& text, QStringView pattern) {
    switch (KindOf(pattern)) {
        case PatternKind::Date: {
            const auto date = ReadDate(text);
            return date ? Format(*date, pattern) : text;
        }
        case PatternKind::Time: {
            const auto time = ReadTime(text);
            return time ? Format(*time, pattern) : text;
        }
        default: {
            const auto decimal = Decimal::Read(text);
            return decimal && decimal->point <= MostWholeDigits ? FormatDecimal(*decimal, pattern) : text;
        }
    }
}

QString Format(const Value& value, QStringView pattern) {
    switch (value.GetKind()) {
        case Value::Kind::Text:
            return Format(value.As<QString>(), pattern);
        case Value::Kind::Whole:
            return FormatWhole(value.As<qint64>(), pattern);
        case Value::Kind::Money:
            return Format(value.As<Money>(), pattern);
        case Value::Kind::Double:
            return Format(value.As<double>(), pattern);
        case Value::Kind::Date:
            return Format(value.As<QDate>(), pattern);
        case Value::Kind::Time:
            return Format(value.As<QTime>(), pattern);
        case Value::Kind::YesNo:
            if (KindOf(pattern) == PatternKind::Number) return FormatWhole(value.ToWhole(), pattern);
            return value.ToText();
        case Value::Kind::Null:
            break;
    }
    return {};
}

}  // namespace values
