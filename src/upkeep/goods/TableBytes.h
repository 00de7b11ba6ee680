#pragma once

#include <QByteArray>
#include <QString>

namespace upkeep {

// What a file of a table may hold.
inline constexpr qint64 LargestTable = qint64{32} * 1024 * 1024;

// The bytes of a file that may be a table of text. An empty or too large one, and one that is known to be something
// else, throws a FileError that says so.
QByteArray ReadTableBytes(const QString& path);

}  // namespace upkeep
