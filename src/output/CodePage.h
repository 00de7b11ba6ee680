#pragma once

#include <QByteArray>
#include <QString>

namespace output {

// Text in the single-byte code page of the user's locale: 1250 for the languages of central and south-eastern Europe
// that are written in Latin letters, 1252 elsewhere. What the page lacks becomes "?", one a character.
void AppendInCodePage(QByteArray& bytes, QStringView text);
// Whether a locale, however it is spelled ("sr_RS.utf8@latin", "sr-Latn", "hr"), is one of page 1250.
bool IsCentralEuropean(QStringView locale);
QString FromCodePage(const QByteArray& bytes);
// The columns that a text takes on paper: its bytes in the code page. A sign of two UTF-16 units is one, a
// combining mark is one of its own beside its letter.
qint32 Columns(QStringView text);
// The beginning of a text, in so many columns at most; never half a sign.
QString FirstColumns(const QString& text, qint32 columns);
// Text that names its page by itself, whatever the user's locale: 1250; any other number is taken for 1252.
QString FromNumberedPage(const QByteArray& bytes, int page);

}  // namespace output
