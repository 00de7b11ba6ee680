#pragma once

#include <QString>

namespace upkeep {

// A folder for backups, on a second disk, a stick or in the network, that was made fit for them: a file in it says so.
// When the file is missing where it was before, something else lies in the folder's place, as where a stick was drawn.
// Failures are FileErrors, a sentence each.

// Makes a folder fit. One within the register's own folder is refused, and one that can't be written to.
void MakeFit(const QString& folder, const QString& registerFolder);
bool IsFit(const QString& folder);
// Before a backup: a folder that this register has not used yet is made fit, another one has to be it.
void RequireFit(const QString& folder, const QString& registerFolder);
// The same, and the till backs up there from now on (velton.ini).
void ChooseBackupFolder(const QString& folder, const QString& registerFolder);

// A broken disk would take both.
bool IsOnSameDisk(const QString& folder, const QString& registerFolder);

// What this register's backups have to themselves there; several registers may use one folder.
QString OwnFolder(const QString& folder, const QString& registerFolder);
// Held for as long as one program works at the backups of a register.
QString BackupLock(const QString& registerFolder);
// The register as a person knows it: the machine and the folder.
QString RegisterName(const QString& registerFolder);

}  // namespace upkeep
