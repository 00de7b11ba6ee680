#include "store/dialect/Literals.h"

#include <algorithm>
#include <optional>

#include "store/Words.h"
#include "store/dialect/Complaint.h"
#include "values/DateText.h"
#include "values/Numbers.h"
#include "values/Value.h"

namespace store::dialect {

namespace {

constexpr int Decimals = 4;

// A number as written, without sign, in units of 10^-decimals; digits beyond them are rounded half to even.
// Nothing when it exceeds 64 bits.
std::optional<qint64> ReadUnits(QStringView number, int decimals) {
    qint64 units = 0;
    int decimal = -1;  // how many decimals were read; -1 before the point
    bool aboveHalf = false, half = false;
    for (const QChar c : number) {
        if (c == u'.') {
            decimal = 0;
            continue;
        }
        const int digit = c.unicode() - u'0';
        if (decimal >= decimals) {
            if (decimal == decimals) half = digit >= 5;
            aboveHalf |= half && (decimal > decimals ? digit > 0 : digit > 5);
            ++decimal;
            continue;
        }
        if (__builtin_mul_overflow(units, 10, &units) || __builtin_add_overflow(units, digit, &units)) return {};
        if (decimal >= 0) ++decimal;
    }
    for (int missing = decimals - std::max(decimal, 0); missing > 0; --missing) {
        if (__builtin_mul_overflow(units, 10, &units)) return {};
    }
    const bool up = aboveHalf || (half && units % 2 != 0);
    if (up && __builtin_add_overflow(units, 1, &units)) return {};
    return units;
}

std::optional<QDate> ReadLiteralDate(QStringView content) {
    const auto number = [content](qsizetype at, qsizetype length) {
        int value = 0;
        for (const QChar c : content.sliced(at, length)) {
            if (c < u'0' || c > u'9') return -1;
            value = value * 10 + (c.unicode() - u'0');
        }
        return value;
    };
    if (content.size() != 10 || content[2] != u'-' || content[5] != u'-') return {};
    const QDate date(number(6, 4), number(0, 2), number(3, 2));
    return date.isValid() ? std::optional(date) : std::nullopt;
}

class Reader {
public:
    Reader(const QString& text, const Token& literal) : text_(text), literal_(literal), fail_(text) {}

    BoundValue As(Target target) const {
        switch (literal_.lexeme) {
            case Lexeme::Text:
                return FromText(target);
            case Lexeme::Date:
                return FromDate(target);
            default:
                return FromNumber(target);
        }
    }

private:
    QStringView Content() const {
        const QStringView written = Written(text_, literal_);
        const bool quoted = literal_.lexeme == Lexeme::Text || literal_.lexeme == Lexeme::Date;
        return quoted ? written.sliced(1, written.size() - 2) : written;
    }

    BoundValue FromText(Target target) const {
        const bool text = target == Target::Text || target == Target::Pattern;
        if (text && !literal_.doubled) return Content().toUtf8();
        const values::Value value(ContentOf(text_, literal_));
        try {
            switch (target) {
                case Target::Whole:
                    return value.ToWhole();
                case Target::Scaled:
                    return value.ToMoney().Units();
                case Target::Double:
                    return value.ToDouble();
                case Target::Date:
                    return value.ToDate().toJulianDay();
                case Target::Time:
                    return qint64{value.ToTime().msecsSinceStartOfDay() / 1000};
                case Target::YesNo:
                    return qint64{value.ToBool() ? -1 : 0};
                default:
                    return value.As<QString>().toUtf8();
            }
        } catch (const values::Error& error) {
            if (error.Number() == values::Overflow) FailTooLarge();
            fail_(ConversionFailed, literal_.span, UnlikeWords(target).arg(Written(text_, literal_)));
        }
    }

    static QString UnlikeWords(Target target) {
        switch (target) {
            case Target::Date:
                return Words::tr("%1 is not a date.");
            case Target::Time:
                return Words::tr("%1 is not a time.");
            case Target::YesNo:
                return Words::tr("%1 is not yes or no.");
            default:
                return Words::tr("%1 is not a number.");
        }
    }

    BoundValue FromDate(Target target) const {
        const std::optional<QDate> date = ReadLiteralDate(Content());
        if (!date) {
            fail_(SyntaxError, literal_.span,
                  Words::tr("%1 is not a date; a date is written #mm-dd-yyyy#.").arg(Written(text_, literal_)));
        }
        if (target == Target::Text) return values::DateText(*date).toUtf8();
        return date->toJulianDay();
    }

    BoundValue FromNumber(Target target) const {
        switch (target) {
            case Target::Whole:
                return Units(0);
            case Target::Scaled:
                return Units(Decimals);
            case Target::YesNo:
                return qint64{Double() != 0 ? -1 : 0};
            case Target::Text:
                return NumberText().toUtf8();
            default:
                return Double();
        }
    }

    double Double() const {
        bool read = false;
        const double number = Content().toDouble(&read);
        if (!read) FailTooLarge();
        return number;
    }

    qint64 Units(int decimals) const {
        const std::optional<qint64> units = ReadUnits(Content(), decimals);
        if (!units) FailTooLarge();
        return *units;
    }

    QString NumberText() const {
        if (literal_.lexeme == Lexeme::Whole) return values::NumberText(Units(0));
        if (literal_.lexeme == Lexeme::LongDecimal) return values::NumberText(Double());
        return values::NumberText(values::Money::FromUnits(Units(Decimals)));
    }

    [[noreturn]] void FailTooLarge() const {
        fail_(values::Overflow, literal_.span, Words::tr("%1 is too large.").arg(Written(text_, literal_)));
    }

    const QString& text_;
    const Token& literal_;
    Complaint fail_;
};

}  // namespace

BoundValue ValueOf(const QString& text, const Token& literal, Target target) {
    return Reader(text, literal).As(target);
}

}  // namespace store::dialect
