#include <QDir>

#include "Commands.h"
#include "Output.h"
#include "ToolWords.h"
#include "upkeep/Backup.h"
#include "upkeep/Restore.h"
#include "upkeep/ValueText.h"
#include "values/FileError.h"

using upkeep::BackupPlan;
using upkeep::WriteText;
using upkeep::WriteValue;

namespace tool {

namespace {

BackupPlan PlanOf(const QString& folder, const QString& named) {
    BackupPlan plan = upkeep::ReadBackupPlan(folder);
    if (!named.isEmpty()) plan.folder = QDir::cleanPath(QDir(named).absolutePath());
    if (plan.folder.isEmpty())
        throw values::FileError(
            values::InvalidCall,
            ToolWords::tr("No folder for backups is named here, nor by velton.ini in its section [backup]."));
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

template <class T>
QString Shown(const T& value) {
    return QString::fromUtf8(WriteValue(value));
}

// The days that are others by a restore.
QByteArray Changes(const upkeep::RestorePreview& preview) {
    QByteArray lines;
    for (const auto& [one, other] : preview.days)
        if (one != other)
            lines += ToolWords::tr("%1: %2 invoices, %3 become %4, %5")
                         .arg(Shown(one.day), Shown(one.invoices), Shown(one.takings), Shown(other.invoices),
                              Shown(other.takings))
                         .toUtf8() +
                     '\n';
    return lines;
}

}  // namespace

void BackupRegister(const QString& folder, const QString& to) {
    OpenStore(folder, Which::Options);  // a slip in the folder's name is told as every other call tells it
    const upkeep::BackupFacts made = upkeep::MakeBackup(folder, PlanOf(folder, to));
    Output output;
    output.WriteLine(ToolWords::tr("Made %1: %2 invoices, %3 bytes.")
                         .arg(made.path, QString::number(made.invoices), QString::number(made.bytes)));
    output.Finish();
}

void Backups(const QString& folder, const QString& in) {
    const BackupPlan plan = PlanOf(folder, in);
    if (!QDir(plan.folder).exists())
        throw values::FileError(values::PathNotFound,
                                ToolWords::tr("The folder for backups, %1, is not there.").arg(plan.folder));
    Output output;
    output.Write("backup\tbytes\tinvoices\tlast day\ttakings\tregister\tstate\n");
    for (const upkeep::BackupFacts& backup : upkeep::ListBackups(plan.folder, folder)) output.Write(Line(backup));
    output.Finish();
}

void Restore(const QString& folder, const QString& backup, const QString& in) {
    const QString place = in.isEmpty() ? upkeep::ReadBackupPlan(folder).folder : in;
    const upkeep::BackupFacts found = upkeep::FindBackup(backup, place, folder);
    const QByteArray changes = found.fault.isEmpty() ? Changes(upkeep::PreviewRestore(folder, found)) : QByteArray();
    const upkeep::Restored restored = upkeep::RestoreBackup(folder, found);
    Output output;
    output.Write(changes);
    output.WriteLine(ToolWords::tr("Restored %1 invoices of %2 days.").arg(restored.invoices).arg(restored.days));
    output.WriteLine(ToolWords::tr("What was replaced is kept in %1.").arg(restored.keptAs));
    if (!restored.oldStore.isEmpty() && !restored.oldStore.startsWith(restored.keptAs))
        output.WriteLine(ToolWords::tr("The old store is kept as %1.").arg(restored.oldStore));
    output.Finish();
}

}  // namespace tool
