#pragma once

#include <QDateTime>
#include <QStringList>

#include "values/Money.h"

namespace upkeep {

// The backups of one register: a folder each, named after its moment, in a folder of the register's own in the place
// that the owner chose. In each lie the two stores as files that can stand in for the register's, its ini files,
// pictures and ribbon, and backup.ini with the facts below.
struct Backup {
    QString path;
    QDateTime made;
    QString version;  // of the program
    qint64 bytes = 0;
    int days = 0;  // with sales
    int invoices = 0;
    QDate lastDay = {};
    values::Money lastTakings = {};
};

// How many are kept: the newest of each of so many days, weeks and months that have one.
struct Kept {
    int days = 14;
    int weeks = 8;
    int months = 24;
};

// What velton.ini in a register's folder says: [backup] folder, days, weeks, months.
struct BackupPlan {
    QString place;  // empty: none are made
    Kept kept;
};
BackupPlan ReadBackupPlan(const QString& registerFolder);

// The owner's place is known by a file that says so: a stick that is not plugged in leaves an empty folder behind,
// which must not be filled in its stead. FileError when it cannot be made so.
void TakeAsPlace(const QString& place);
// FileError in words when it is not there, is another one or cannot be written to.
void RequirePlace(const QString& place);

// Where a register's backups lie within the place: by machine and folder.
QString FolderOfRegister(const QString& place, const QString& registerFolder);
// The whole ones, the newest first.
std::vector<Backup> BackupsIn(const QString& folderOfRegister);
// Those of these moments, the newest first, that are not kept.
std::vector<QDateTime> Outdated(std::vector<QDateTime> made, const Kept& kept);

Backup ReadFacts(const QString& backup);
void WriteFacts(const QString& folder, const Backup& facts);
// The name of a backup's folder.
QString NameOf(const QDateTime& made);

}  // namespace upkeep
