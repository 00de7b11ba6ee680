#pragma once

#include <QString>
#include <QStringView>
#include <vector>

namespace values {

// One piece of a date or time text: a number, a name, or characters that stand as they are.
struct DateField {
    enum class Kind { Literal, Day, Month, MonthName, Year, Hour, Hour12, Minute, Second, DayPeriod, Zone };

    Kind kind;
    int width = 0;    // digits at least; for a month's name 3 is the short one
    QString literal;  // of a Literal
};

using DateForm = std::vector<DateField>;

// The pieces of a date or time format as QLocale describes it (letters d M y H h m s t AP, quoted texts).
// Years become four digits; the zone of a time goes, with the blanks, brackets and comma that set it off.
DateForm ParseDateForm(QStringView format);
DateForm ParseTimeForm(QStringView format);

// Special blanks become plain ones, invisible direction marks go: a printer has neither.
QString PlainText(const QString& text);

}  // namespace values
