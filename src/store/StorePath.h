#pragma once

#include <memory>

#include "store/Place.h"

namespace store {

class Database;

// What the stores are called in a program's folder.
inline constexpr QLatin1StringView MainFile("ORVA.pos");
inline constexpr QLatin1StringView OptionsFile("opt.pos");

// Where the stores of a program's folder lie: both in it, but for a main store that store.ini points to in its section
// [main]. The key `path` is a folder with an ORVA.pos or a file, relative to the program's folder or absolute, taken as
// it stands but for blanks and quotes around it and backslashes, which separate folders. The key `url` is the address
// of a server. A store.ini that cannot be read throws 3051, so that a register never falls back to a store of its own.
Place MainPlace(const QString& programFolder);
Place OptionsPlace(const QString& programFolder);

// The stores of a program's folder, which have to be there.
std::unique_ptr<Database> OpenMain(const QString& programFolder);
std::unique_ptr<Database> OpenOptions(const QString& programFolder);

}  // namespace store
