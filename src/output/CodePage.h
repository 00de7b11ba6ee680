#pragma once

#include <QByteArray>
#include <QString>

namespace output {

// Text in the single-byte code page of the user's locale: 1250 for the languages of central and south-eastern Europe
// that are written in Latin letters, 1252 elsewhere. What the page lacks becomes "?", one a character.
QByteArray ToCodePage(QStringView text);
QString FromCodePage(const QByteArray& bytes);

}  // namespace output
