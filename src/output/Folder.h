#pragma once

#include <QString>

namespace output {

// The folder of the running program, which holds everything of one register; tests and the demonstration set it.
QString ProgramFolder();
void SetProgramFolder(const QString& folder);
// A path below the program's folder as the system writes it: "\images\printer.gif" and "invoices.txt" alike.
QString InProgramFolder(QString path);

}  // namespace output
