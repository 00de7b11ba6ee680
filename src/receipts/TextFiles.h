#pragma once

#include <QString>
#include <functional>

// Text files of any size, such as ribbons and reports, taken line by line.

// Prints a file on the printer for reports (PrinterZaIzvjestaj: a port or the page printer; anything else prints
// nothing), with nothing added to it. `progress` hears the percents done. Whatever fails ends the program.
void PrintTextFile(const QString& path, const std::function<void(int percent)>& progress);

// Copies a file, whole or not at all: what stood under that name stays when the copy fails. The error of a folder that
// is missing or cannot be written does not end the program: the user may name another one.
void CopyTextFile(const QString& from, const QString& to);

// Removes a file when there is one. The error of one that stays does not end the program.
void DeleteTextFile(const QString& path);
