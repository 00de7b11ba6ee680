#include <QDir>

#include "Commands.h"
#include "Output.h"
#include "upkeep/Backup.h"
#include "upkeep/Restore.h"
#include "upkeep/ValueText.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;
using upkeep::WriteText;
using upkeep::WriteValue;

namespace tool {

namespace {

upkeep::BackupPlan PlanOf(const QString& folder, const QString& named) {
    upkeep::BackupPlan plan = upkeep::ReadBackupPlan(folder);
    if (!named.isEmpty()) plan.folder = QDir::cleanPath(QDir(named).absolutePath());
    if (plan.folder.isEmpty())
        throw values::FileError(values::InvalidCall,
                                u"No folder for backups is named here, nor by velton.ini in its section [backup]."_s);
    return plan;
}

QByteArray Line(const upkeep::BackupFacts& backup) {
    const values::Value lastDay = backup.lastDay.day.isValid() ? backup.lastDay.day : values::Value();
    return QByteArrayList{WriteText(backup.Name()),
                          WriteValue(backup.bytes),
                          WriteValue(backup.invoices),
                          WriteValue(lastDay),
                          WriteValue(backup.lastDay.takings),
                          backup.isOwn ? QByteArray("this register") : WriteText(backup.registerName),
                          backup.fault.isEmpty() ? QByteArray("whole") : WriteText(backup.fault)}
               .join('\t') +
           '\n';
}

}  // namespace

void BackupRegister(const QString& folder, const QString& to) {
    OpenStore(folder, Which::Options);  // a slip in the folder's name is told as every other call tells it
    const upkeep::BackupFacts made = upkeep::MakeBackup(folder, PlanOf(folder, to));
    Output output;
    output.Write(u"Made %1: %2 invoices, %3 bytes.\n"_s
                     .arg(made.path, QString::number(made.invoices), QString::number(made.bytes))
                     .toUtf8());
    output.Finish();
}

void Backups(const QString& folder, const QString& in) {
    const upkeep::BackupPlan plan = PlanOf(folder, in);
    if (!QDir(plan.folder).exists())
        throw values::FileError(values::PathNotFound, u"The folder for backups, %1, is not there."_s.arg(plan.folder));
    Output output;
    output.Write("backup\tbytes\tinvoices\tlast day\ttakings\tregister\tstate\n");
    for (const upkeep::BackupFacts& backup : upkeep::ListBackups(plan.folder, folder)) output.Write(Line(backup));
    output.Finish();
}

void Restore(const QString& folder, const QString& backup, const QString& in) {
    const QString place = in.isEmpty() ? upkeep::ReadBackupPlan(folder).folder : in;
    const upkeep::Restored restored = upkeep::RestoreBackup(folder, upkeep::FindBackup(backup, place, folder));
    Output output;
    output.Write(u"Restored %1 invoices of %2 days.\nWhat was replaced is kept in %3.\n"_s
                     .arg(QString::number(restored.invoices), QString::number(restored.days), restored.keptAs)
                     .toUtf8());
    if (!restored.oldStore.isEmpty() && !restored.oldStore.startsWith(restored.keptAs))
        output.Write(u"The old store is kept as %1.\n"_s.arg(restored.oldStore).toUtf8());
    output.Finish();
}

}  // namespace tool
