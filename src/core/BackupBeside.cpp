#include "core/BackupBeside.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

#include "core/Installation.h"
#include "output/Folder.h"

using namespace Qt::StringLiterals;

void BackUpBeside() {
    if (TheInstallation.backupFolder.isEmpty()) return;
    const QString copy = output::InProgramFolder(u"velton"_s);
    QProcess backup;
    backup.setProgram(QFileInfo(copy).isExecutable() ? copy : QCoreApplication::applicationFilePath());
    backup.setArguments({QString::fromLatin1(BackupSwitch)});
    backup.setStandardOutputFile(QProcess::nullDevice());
    backup.setStandardErrorFile(QProcess::nullDevice());
    backup.startDetached();
}
