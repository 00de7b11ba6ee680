#pragma once

#include <QDateTime>
#include <QString>

namespace upkeep {

// What a register knows of its backups, in backup.state in its folder: the last good one, and why the last try failed,
// which is empty when it did not.
struct BackupState {
    QDateTime good;
    QString path;
    qint64 bytes = 0;
    QDateTime failed;
    QString why;
    QDate told;  // when the owner was last told of it
};

// A file that can't be read is as none.
BackupState ReadBackupState(const QString& registerFolder);
void WriteBackupState(const QString& registerFolder, const BackupState& state);

// What the owner ought to know, as one sentence; empty when all is well or there is nothing to say yet.
QString BackupTrouble(const BackupState& state, const QDateTime& now);

}  // namespace upkeep
