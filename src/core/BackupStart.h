#pragma once

#include <QString>
#include <functional>

// The till has its backups made by a process of its own, which nobody waits for and which outlives it. Without
// [backup] folder= in velton.ini none of this does anything.

// What starts that process for a register's folder; false when it can't. Until it is set, as in tests, nothing starts.
void UseBackupProgram(std::function<bool(const QString& registerFolder)> start);

// After an End Report.
void StartBackup();
// At the start of the till, unless there is a good one of today.
void StartBackupOfTheDay();
// After a login: what a user of level 3 has to hear about the backups, once a day.
void TellOfBackups(const QString& accLevel);
