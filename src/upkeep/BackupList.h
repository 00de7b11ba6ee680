#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>

#include "upkeep/DayTotals.h"
#include "upkeep/FileCopy.h"
#include "upkeep/Progress.h"

namespace upkeep {

// A backup of a whole register is a folder, velton-2026-11-26-103000: in `register` the files as they lie in the
// register's folder, both stores whole and checked; files.tsv with the size and SHA-256 of each; days.tsv with what
// the shop sold on each day; backup.ini with the facts. It gets its name when all of it is on the disk.
struct BackupFacts {
    QString path;
    QDateTime made;
    QString version;       // of the program
    QString registerName;  // machine and folder
    bool isOwn = true;     // of the register that asks
    qint64 bytes = 0;
    qint64 invoices = 0;
    DayTotal lastDay;  // its takings; invalid before the first sale
    QString fault;     // what is the matter with it; empty for a whole one

    QString Name() const { return path.section(u'/', -1); }
};

namespace backup {

inline constexpr QLatin1StringView Prefix("velton-");
inline constexpr QLatin1StringView Unfinished(".part");
inline constexpr QLatin1StringView Facts("backup.ini");
inline constexpr QLatin1StringView Files("files.tsv");
inline constexpr QLatin1StringView Days("days.tsv");
inline constexpr QLatin1StringView Register("register");

// By their names within the register.
using FileList = QHash<QString, Fingerprint>;
QByteArray WriteFileList(const FileList& files);
// Throws a FileError when there is none, and a StoreError when it is none.
FileList ReadFileList(const QString& path);
QByteArray WriteFacts(const BackupFacts& facts);

}  // namespace backup

// Looks at one; sizes are compared, not contents.
BackupFacts ReadBackup(const QString& path, const QString& registerFolder);
// All that a folder holds, of all registers, the newest first.
QList<BackupFacts> ListBackups(const QString& folder, const QString& registerFolder, const Progress& progress = {});
DayTotals DaysOf(const BackupFacts& backup);

}  // namespace upkeep
