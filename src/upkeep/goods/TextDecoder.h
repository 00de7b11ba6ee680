#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace upkeep {

// The encodings that a table may be told to be in: what a region's spreadsheets write.
QStringList KnownEncodings();

// What the bytes of a text are most likely written in: the mark at their head, UTF-8 where they are valid, UTF-16 by
// its zeros, else the code page that their letters speak for. One of KnownEncodings.
QString GuessEncoding(const QByteArray& bytes);

// The text without a byte-order mark. Bytes that the encoding does not have, and an encoding that is not known, throw a
// FileError.
QString DecodeText(const QByteArray& bytes, const QString& encoding);

}  // namespace upkeep
