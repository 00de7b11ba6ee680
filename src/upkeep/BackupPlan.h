#pragma once

#include <QStringList>

#include "values/IniFile.h"

namespace upkeep {

// Where a register's backups go and how many are kept: the section [backup] of its velton.ini.
struct BackupPlan {
    QString folder;  // empty: none is made by itself
    // The newest of each of so many days, weeks and months that have one.
    int days = 14;
    int weeks = 8;
    int months = 24;

    static constexpr int LeastDays = 1;  // the last good one is kept in any case; a slip must not leave it alone
    static constexpr int Most = 1000;    // of days, weeks and months each
};

bool IsBackupKey(const QString& section, const QString& name);
// Each value that can't be used adds a sentence, with its line, and stays as if it were missing. A folder is taken from
// the register's on, and "~/" from the user's.
BackupPlan ReadBackupPlan(const values::IniFile& ini, const QString& registerFolder, QStringList& refused);
BackupPlan ReadBackupPlan(const QString& registerFolder);
// How many are kept from now on.
void KeepSoMany(const BackupPlan& plan, const QString& registerFolder);

}  // namespace upkeep
