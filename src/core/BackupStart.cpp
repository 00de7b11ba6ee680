#include "core/BackupStart.h"

#include "core/AccessLevels.h"
#include "core/CoreWords.h"
#include "core/Installation.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "output/Folder.h"
#include "upkeep/BackupState.h"
#include "values/Clock.h"

using namespace Qt::StringLiterals;

namespace {

const auto LastSaleQuery = u"SELECT Max(DateSold) AS LastDay FROM Invoices"_s;

std::function<bool(const QString&)> startProgram;

QDate LastSale() {
    auto rs = MainStore().OpenRecordset(LastSaleQuery);
    return rs[0].IsNull() ? QDate() : rs[0].Get().ToDate();
}

}  // namespace

void UseBackupProgram(std::function<bool(const QString& registerFolder)> start) {
    startProgram = std::move(start);
}

void StartBackup() {
    if (TheInstallation.backup.folder.isEmpty() || !startProgram) return;
    const QString folder = output::ProgramFolder();
    const QDateTime now = values::Now();
    upkeep::NoteAsked(folder, now);
    if (!startProgram(folder))
        upkeep::NoteFailure(folder, now, CoreWords::tr("The program that makes it can't be started."));
}

void StartBackupOfTheDay() {
    if (TheInstallation.backup.folder.isEmpty()) return;
    if (upkeep::ReadBackupState(output::ProgramFolder()).good.date() != values::Today()) StartBackup();
}

void TellOfBackups(const QString& accLevel) {
    if (TheInstallation.backup.folder.isEmpty() || !IsOwner(accLevel)) return;
    const QString folder = output::ProgramFolder();
    const QString notice = upkeep::BackupNotice(upkeep::ReadBackupState(folder), values::Now(), LastSale());
    if (notice.isEmpty()) return;
    upkeep::NoteTold(folder, values::Today());
    forms::Tell(notice, forms::Icon::Warning, u"Backup"_s);
}
