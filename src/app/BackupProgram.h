#pragma once

#include <QString>

// The till's own program as the one that makes backups: `velton --backup [FOLDER]`, without a screen, behind everything
// else that the machine does. The copy in the register's folder may be the only program there.

bool IsBackupCall(int argc, char* argv[]);
// Exit code 0 also where there is nothing to do; else 1, with a line on standard error.
int MakeBackupByItself(int argc, char* argv[]);
// Starts it; it outlives this process. False when it can't be started.
bool StartBackupProgram(const QString& registerFolder);
