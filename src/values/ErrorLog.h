#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

// The last errors of a register's programs: errors.log in its folder, a line each of time, program, number and
// description, parted by tabs. It never holds more than some hundred lines.
namespace values {

// A description without what might be somebody's: quoted parts, paths, addresses and long numbers.
QString WithoutNames(const QString& text);

// Adds a line. Whatever is in the way of it, a full disk or a folder in the place of the file, goes unsaid: an error is
// being told already.
void LogError(const QString& path, const QDateTime& time, const QString& program, int number,
              const QString& description) noexcept;

// The last lines, up to a hundred, the latest at the end; none where there is no such file.
QStringList LastErrors(const QString& path);

}  // namespace values
