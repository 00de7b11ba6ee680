#pragma once

#include <QChar>
#include <QLocale>

namespace values {

// The user's locale decides separators and the default date and time texts, nothing else. Tests set it.
const QLocale& UserLocale();
void SetUserLocale(const QLocale& locale);
// The locale of the user's texts as the environment spells it, "sr_RS.utf8@latin": a QLocale loses what stands behind
// the "@". Of a locale that was set, its short name.
const QString& UserLocaleName();
// LC_ALL, LC_CTYPE, LANG: the first that is set.
QString LocaleNameInEnvironment();

// First character of the locale's decimal separator: what every key filter turns "." and "," into.
QChar DecimalSeparatorChar();
// Group separator of the locale, one character.
QChar GroupSeparatorChar();

}  // namespace values
