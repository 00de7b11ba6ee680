#pragma once

#include <QDate>
#include <QString>
#include <QTime>

#include "values/Money.h"
#include "values/Value.h"

namespace values {

// Writes a value by a pattern.
//
// Number patterns: "0.00", "0.000", "000000", "###,###,##0.00" and the like; "" is the general number text. Rounding
// is half away from zero at the last decimal of the pattern; a double is first taken at 15 significant digits, so
// 2.675 gives 2.68. The user's separators; groups only where the pattern has a comma; never "-0.00".
// Date patterns: "dd.mm.yyyy", "dd.mm.yy", "mm-dd-yyyy", "ddmmyy"; time: "hh:mm:ss". Case does not matter.
//
// A text that is no number (or, for a date pattern, no date in the user's default form) stays as it is, also when
// empty; null gives "".
QString Format(double number, QStringView pattern);
QString Format(Money number, QStringView pattern);
QString Format(QDate date, QStringView pattern);
QString Format(QTime time, QStringView pattern);
QString Format(const QString& text, QStringView pattern);
QString Format(const Value& value, QStringView pattern);

}  // namespace values
