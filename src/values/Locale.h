#pragma once

#include <QChar>
#include <QLocale>

namespace values {

// The user's locale decides separators and the default date and time texts, nothing else. Tests set it.
const QLocale& UserLocale();
void SetUserLocale(const QLocale& locale);

// First character of the locale's decimal separator: what every key filter turns "." and "," into.
QChar DecimalSeparatorChar();
// Group separator of the locale, one character.
QChar GroupSeparatorChar();

}  // namespace values
