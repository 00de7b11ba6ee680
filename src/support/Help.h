#pragma once

#include <QString>

// The help text that is not about one matter alone.
inline const QString ProgramHelp = QStringLiteral("\\helpVELTON.rtf");

// Shows a help text (a path below the program's folder) until the user closes it.
void ShowHelp(const QString& file = ProgramHelp);
