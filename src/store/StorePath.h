#pragma once

#include <QString>

namespace store {

// Where the stores of a program's folder lie: both in it, but for a main store that store.ini points to by the key
// `path` of its section [main]: a folder with an ORVA.pos or a file, relative to the program's folder or absolute,
// taken as it stands but for blanks and quotes around it and backslashes, which separate folders. A store.ini that
// cannot be read throws 3051, so that a register never falls back to a store of its own.
QString MainStorePath(const QString& programFolder);
QString OptionsStorePath(const QString& programFolder);

}  // namespace store
