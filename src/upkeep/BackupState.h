#pragma once

#include <QDateTime>
#include <functional>

#include "values/IniEdit.h"

namespace upkeep {

// What became of the backups of a register, as it is kept in its folder, in backup.state.
struct BackupState {
    QDateTime good;  // when the last good one was made; invalid when there was none yet
    QString path;    // where it lies
    qint64 bytes = 0;
    QDateTime failed;  // the last that could not be made
    QString why;
    QDateTime asked;  // since when one was asked for by the till in vain
    QDate told;       // when the owner was last told of it
};

// Without a file, or with one that can't be read, as if there had been none yet.
BackupState ReadBackupState(const QString& registerFolder);

// What can't be kept is left: a backup counts without its note, and the till must not stop for it.
void NoteGood(const QString& registerFolder, const QDateTime& time, const QString& path, qint64 bytes);
void NoteFailure(const QString& registerFolder, const QDateTime& time, const QString& why);
// A folder that was made fit for backups; several may be used in turn.
void NotePlace(const QString& registerFolder, const QString& place);
bool HasUsedPlace(const QString& registerFolder, const QString& place);
void NoteAsked(const QString& registerFolder, const QDateTime& time);
void NoteTold(const QString& registerFolder, QDate day);

// What the owner should hear at this moment, once a day: that the last try failed, or that there is no good one of the
// last three days although the shop sold after it. Empty when all is well or was told today.
QString BackupNotice(const BackupState& state, const QDateTime& now, QDate lastSale);

}  // namespace upkeep
