#pragma once

#include <QDate>
#include <QString>
#include <QTime>
#include <optional>

// The default texts of dates and times under the user's locale, and their reading back.
namespace values {

// The locale's short date, with four year digits always; ASCII digits.
QString DateText(QDate date);
// The locale's time with seconds and without a zone; ASCII digits, plain blanks.
QString TimeText(QTime time);

// Read what DateText and TimeText write under the user's locale; blanks do not matter, and a closing point may be
// missing. A two-digit year is accepted too (30 to 99 lie in the last century). No date or time gives nullopt.
std::optional<QDate> ReadDate(QStringView text);
std::optional<QTime> ReadTime(QStringView text);

}  // namespace values
