#pragma once

#include <QString>
#include <QStringView>

#include "values/Money.h"

// Reading numbers from texts and writing them back "as they come".
namespace values {

// The number at the start of a text, whatever the locale: leading blanks are skipped, the point is the decimal
// separator, reading stops at the first character that cannot continue the number; no number gives 0, one too large for
// a double Error 6.
double Val(QStringView text);

// Whether the whole text is a number in the user's locale: blanks around it, one sign in front, at most one decimal
// separator; the group separator only between full groups of three digits; an exponent. An empty text is none.
bool IsNumeric(QStringView text);

// The text as money, exactly (never through a double); Error 13 when it is no number, 6 when it is too large.
Money CMoney(QStringView text);
// The text as a double; Error 13 when it is no number.
double CDouble(QStringView text);
// The text as a boolean: "True" or "False" in any case, or a number, 0 being false; otherwise Error 13.
bool CBool(QStringView text);
// A whole number within 16 or 32 bits, halves rounded to even; outside them Error 6.
qint16 CInt16(double number);
qint32 CInt32(double number);

// General number text: the user's decimal separator, no groups, no needless zeros, ASCII minus and digits;
// a double at 15 significant digits.
QString NumberText(double number);
QString NumberText(Money number);
QString NumberText(qint64 number);

}  // namespace values
