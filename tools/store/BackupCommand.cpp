#include "Commands.h"
#include "Output.h"
#include "upkeep/RegisterBackup.h"
#include "upkeep/Restore.h"
#include "upkeep/ValueText.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace tool {

namespace {

QString PlaceOf(const QString& folder, const QString& place) {
    const QString chosen = place.isEmpty() ? upkeep::ReadBackupPlan(folder).place : place;
    if (chosen.isEmpty())
        throw values::FileError(values::InvalidCall,
                                u"velton.ini has no folder for backups ([backup] folder=); say it with --to."_s);
    return chosen;
}

QByteArray Amount(values::Money amount) {
    return upkeep::WriteValue(amount);
}

}  // namespace

void Backup(const QString& folder, const QString& file) {
    if (file == u"-")
        throw values::FileError(values::InvalidCall, u"A copy goes into a file, not to the standard output."_s);
    OpenStore(folder, Which::Main)->BackupTo(file);
}

void BackupRegister(const QString& folder, const QString& place) {
    const QString chosen = PlaceOf(folder, place);
    if (!place.isEmpty()) upkeep::TakeAsPlace(place);
    const upkeep::Backup backup = upkeep::BackUpRegister(folder, chosen, upkeep::ReadBackupPlan(folder).kept);
    Output output;
    output.Write(backup.path.toUtf8() + '\n');
    output.Finish();
}

void Backups(const QString& folder, const QString& place) {
    Output output;
    output.Write("made\tbytes\tinvoices\tlast day\ttakings\tpath\n"_ba);
    for (const upkeep::Backup& backup : upkeep::BackupsIn(upkeep::FolderOfRegister(PlaceOf(folder, place), folder))) {
        const QByteArrayList cells = {backup.made.toString(u"yyyy-MM-dd HH:mm:ss"_s).toUtf8(),
                                      QByteArray::number(backup.bytes),
                                      QByteArray::number(backup.invoices),
                                      backup.lastDay.toString(Qt::ISODate).toUtf8(),
                                      Amount(backup.lastTakings),
                                      backup.path.toUtf8()};
        output.Write(cells.join('\t') + '\n');
    }
    output.Finish();
}

void Restore(const QString& folder, const QString& backup) {
    Output output;
    for (const auto& [day, here, there] : upkeep::CompareWithBackup(folder, backup))
        output.Write(day.toString(Qt::ISODate).toUtf8() + ": " + QByteArray::number(here.invoices) + " invoices, " +
                     Amount(here.takings) + " become " + QByteArray::number(there.invoices) + ", " +
                     Amount(there.takings) + '\n');
    const QString kept = upkeep::RestoreRegister(folder, backup);
    output.Write("What was replaced is kept in " + kept.toUtf8() + ".\n");
    output.Finish();
}

}  // namespace tool
