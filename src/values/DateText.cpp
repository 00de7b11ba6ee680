#include "values/DateText.h"

#include <algorithm>

#include "values/Digits.h"
#include "values/LocaleTexts.h"

namespace values {

namespace {

using Kind = DateField::Kind;

// Two-digit years from here on lie in the last century.
constexpr int FirstYearOfLastCentury = 30;
constexpr int UsualLength = 12;  // of a date or a time as a text

QLocale::FormatType NameForm(const DateField& field) {
    return field.width > 3 ? QLocale::LongFormat : QLocale::ShortFormat;
}

int TwelveHours(int hour) {
    return hour % 12 == 0 ? 12 : hour % 12;
}

// Takes the pieces of a text off its front.
class PieceReader {
public:
    explicit PieceReader(QStringView text) : rest_(text.trimmed()) {}

    bool AtEnd() const { return rest_.isEmpty(); }

    // A number of at most so many ASCII digits.
    std::optional<int> Number(int mostDigits) {
        SkipBlanks();
        int number = 0;
        digits_ = 0;
        while (digits_ < mostDigits && digits_ < rest_.size() && IsDigit(rest_[digits_]))
            number = number * 10 + (rest_[digits_++].unicode() - u'0');
        rest_ = rest_.sliced(digits_);
        return digits_ > 0 ? std::optional(number) : std::nullopt;
    }

    std::optional<int> Year() {
        const auto year = Number(4);
        if (digits_ == 4) return year;
        if (digits_ != 2) return std::nullopt;
        return *year + (*year < FirstYearOfLastCentury ? 2000 : 1900);
    }

    // Blanks count for nothing, and what closes a text may be missing.
    bool Literal(QStringView literal) {
        for (const QChar c : literal) {
            SkipBlanks();
            if (c.isSpace()) continue;
            if (AtEnd()) return true;
            if (rest_.front() != c) return false;
            rest_ = rest_.sliced(1);
        }
        return true;
    }

    bool Word(QStringView word) {
        SkipBlanks();
        if (word.isEmpty() || !rest_.startsWith(word, Qt::CaseInsensitive)) return false;
        rest_ = rest_.sliced(word.size());
        return true;
    }

private:
    void SkipBlanks() {
        while (!rest_.isEmpty() && rest_.front().isSpace()) rest_ = rest_.sliced(1);
    }

    QStringView rest_;
    int digits_ = 0;
};

std::optional<int> ReadMonthName(PieceReader& reader, const DateField& field) {
    for (int month = 1; month <= 12; ++month)
        if (reader.Word(PlainText(UserTexts().locale.monthName(month, NameForm(field))))) return month;
    return std::nullopt;
}

// Whether the time lies after noon. The longer word first, in case one begins like the other.
std::optional<bool> ReadDayPeriod(PieceReader& reader) {
    const auto& texts = UserTexts();
    const bool pmFirst = texts.pm.size() > texts.am.size();
    if (reader.Word(pmFirst ? texts.pm : texts.am)) return pmFirst;
    if (reader.Word(pmFirst ? texts.am : texts.pm)) return !pmFirst;
    return std::nullopt;
}

}  // namespace

QString DateText(QDate date) {
    QString text;
    if (!date.isValid()) return text;
    text.reserve(UsualLength);
    for (const auto& field : UserTexts().date) {
        switch (field.kind) {
            case Kind::Day:
                AddPadded(text, date.day(), field.width);
                break;
            case Kind::Month:
                AddPadded(text, date.month(), field.width);
                break;
            case Kind::MonthName:
                text += PlainText(UserTexts().locale.monthName(date.month(), NameForm(field)));
                break;
            case Kind::Year:
                AddPadded(text, date.year(), field.width);
                break;
            default:
                text += field.literal;
        }
    }
    return text;
}

QString TimeText(QTime time) {
    QString text;
    if (!time.isValid()) return text;
    text.reserve(UsualLength);
    for (const auto& field : UserTexts().time) {
        switch (field.kind) {
            case Kind::Hour:
                AddPadded(text, time.hour(), field.width);
                break;
            case Kind::Hour12:
                AddPadded(text, TwelveHours(time.hour()), field.width);
                break;
            case Kind::Minute:
                AddPadded(text, time.minute(), field.width);
                break;
            case Kind::Second:
                AddPadded(text, time.second(), field.width);
                break;
            case Kind::DayPeriod:
                text += time.hour() < 12 ? UserTexts().am : UserTexts().pm;
                break;
            default:
                text += field.literal;
        }
    }
    return text;
}

std::optional<QDate> ReadDate(QStringView text) {
    PieceReader reader(text);
    std::optional<int> day, month, year;
    for (const auto& field : UserTexts().date) {
        bool fits = true;
        switch (field.kind) {
            case Kind::Day:
                fits = (day = reader.Number(2)).has_value();
                break;
            case Kind::Month:
                fits = (month = reader.Number(2)).has_value();
                break;
            case Kind::MonthName:
                fits = (month = ReadMonthName(reader, field)).has_value();
                break;
            case Kind::Year:
                fits = (year = reader.Year()).has_value();
                break;
            default:
                fits = reader.Literal(field.literal);
        }
        if (!fits) return std::nullopt;
    }
    if (!reader.AtEnd() || !day || !month || !year) return std::nullopt;
    const QDate date(*year, *month, *day);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

std::optional<QTime> ReadTime(QStringView text) {
    PieceReader reader(text);
    std::optional<int> hour, minute, second;
    std::optional<bool> afternoon;
    for (const auto& field : UserTexts().time) {
        bool fits = true;
        switch (field.kind) {
            case Kind::Hour:
            case Kind::Hour12:
                fits = (hour = reader.Number(2)).has_value();
                break;
            case Kind::Minute:
                fits = (minute = reader.Number(2)).has_value();
                break;
            case Kind::Second:
                fits = (second = reader.Number(2)).has_value();
                break;
            case Kind::DayPeriod:
                fits = (afternoon = ReadDayPeriod(reader)).has_value();
                break;
            default:
                fits = reader.Literal(field.literal);
        }
        if (!fits) return std::nullopt;
    }
    if (!reader.AtEnd() || !hour || !minute || !second) return std::nullopt;
    if (afternoon) {
        if (*hour < 1 || *hour > 12) return std::nullopt;
        hour = *hour % 12 + (*afternoon ? 12 : 0);
    }
    const QTime time(*hour, *minute, *second);
    return time.isValid() ? std::optional(time) : std::nullopt;
}

}  // namespace values
