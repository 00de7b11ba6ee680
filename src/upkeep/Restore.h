#pragma once

#include "upkeep/BackupList.h"

namespace upkeep {

// What a shop would lose and get back by a restore.
struct RestorePreview {
    BackupFacts backup;
    QList<DayInTwo> days;  // the live store and the backup, those that differ first
    QString liveFault;     // why the live store can't be read; empty when it can
};

// By its path, or by its name in a folder of backups, where this register's own is meant first. A FileError when there
// is none.
BackupFacts FindBackup(const QString& pathOrName, const QString& folder, const QString& registerFolder);
RestorePreview PreviewRestore(const QString& registerFolder, const BackupFacts& backup);

struct Restored {
    QString keptAs;    // the folder with what was replaced
    QString oldStore;  // where the old main store is kept
    qint64 invoices = 0;
    int days = 0;
};

// Puts a backup into the place of a register's stores, pictures and ini files, all or nothing: it is read and checked
// first, the main store comes into its place (a file, or a schema of the server) in one step, and a restore that is
// killed behind that step is ended by the next start. What was replaced is kept in the register's folder. store.ini
// stays, and so do a ribbon and a manager.pos that are there, which hold more than those in the backup.
//
// The till of the register must be closed, and so must all others of its store: 3218 where that is not so and is to be
// known. Whoever calls it has closed its own stores. 3059 when its user left before anything was changed.
Restored RestoreBackup(const QString& registerFolder, const BackupFacts& backup, const Progress& progress = {});

// Ends, or takes back, what a killed restore left; at the start of every program, before it opens a store.
void EndBrokenRestore(const QString& registerFolder);
// A FileError while there is one to be ended.
void RequireNoBrokenRestore(const QString& registerFolder);

}  // namespace upkeep
