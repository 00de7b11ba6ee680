#pragma once

#include "upkeep/DayTotals.h"
#include "upkeep/RegisterBackup.h"

namespace upkeep {

// A day on which a backup and the register that it would replace do not have the same sales.
struct DayDifference {
    QDate day;
    DayTotal inStore;
    DayTotal inBackup;
};

// By day, the last first. A store that can't be read counts as empty.
std::vector<DayDifference> CompareWithBackup(const QString& registerFolder, const QString& backup);

// Puts both stores of a backup in the place of the register's; what it replaces is kept in a folder beside them, which
// is given back. Ini files, pictures and the ribbon come back where they are missing. The backup is checked before
// anything is touched, and at every moment the folder has a whole main store, the old or the new. Nobody may work with
// the register: StoreLocked when a till has the folder, or another register the store. NotSupported for a store on a
// server.
QString RestoreRegister(const QString& registerFolder, const QString& backup, const Progress& progress = {});

}  // namespace upkeep
