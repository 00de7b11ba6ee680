#pragma once

#include <QByteArray>
#include <QString>

namespace output {

// Text in the single-byte code page of the user's locale: 1250 for the languages of central and south-eastern Europe
// that are written in Latin letters, 1252 elsewhere. What the page lacks becomes "?", one a character.
QByteArray ToCodePage(QStringView text);
QString FromCodePage(const QByteArray& bytes);
// Text that names its page by itself, whatever the user's locale: 1250; any other number is taken for 1252.
QString FromNumberedPage(const QByteArray& bytes, int page);

}  // namespace output
