#include "manager/backup/BackupPage.h"

#include "core/Installation.h"
#include "forms/FileDialog.h"
#include "forms/MsgBox.h"
#include "manager/Beside.h"
#include "manager/Start.h"
#include "manager/Texts.h"
#include "manager/backup/BackupWords.h"
#include "manager/backup/RestoreForm.h"
#include "output/Folder.h"
#include "store/StoreError.h"
#include "upkeep/Backup.h"
#include "upkeep/BackupPlace.h"
#include "upkeep/BackupState.h"
#include "upkeep/Restore.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;
using output::ProgramFolder;
using upkeep::BackupFacts;

namespace manager {

BackupPage::BackupPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.lstBackups->SetColumns({{tr("Made"), Qt::AlignLeft, 190},
                               {tr("Size"), Qt::AlignRight, 80},
                               {tr("Invoices"), Qt::AlignRight, 80},
                               {tr("Last day"), Qt::AlignLeft, 100},
                               {tr("Its takings"), Qt::AlignRight, 110},
                               {tr("State"), Qt::AlignLeft, -1}});
    ui.lstBackups->SetEmptyText(tr("No backups yet."));
    On(ui.cmdFolder, &BackupPage::cmdFolder_Click);
    On(ui.cmdNow, &BackupPage::cmdNow_Click);
    On(ui.cmdRestore, &BackupPage::cmdRestore_Click);
    OnDoubleClick(ui.lstBackups, &BackupPage::cmdRestore_Click);
}

void BackupPage::Form_Activate() {
    ShowFolder();
    ShowLast();
    ShowBackups();
}

void BackupPage::ShowFolder() {
    const upkeep::BackupPlan& plan = TheInstallation.backup;
    const bool isChosen = !plan.folder.isEmpty();
    ui.cmdNow->setEnabled(isChosen);
    if (!isChosen) {
        ui.lblFolder->setText(
            tr("No folder has been chosen yet, and the till makes no backups. Choose one on a second "
               "disk, on a stick or in the network."));
        ui.lblKept->clear();
        return;
    }
    const bool isSameDisk = upkeep::IsOnSameDisk(plan.folder, ProgramFolder());
    const QString where = isSameDisk
                              ? tr("Backups go to %1, on the same disk as the shop: if it breaks, both are lost.")
                              : tr("Backups go to %1.");
    ui.lblFolder->setText(where.arg(plan.folder));
    ui.lblKept->setText(
        tr("The till makes one at each End Report and when it is first started on a day. Kept are the "
           "newest of each of %1 days, %2 weeks and %3 months.")
            .arg(QString::number(plan.days), QString::number(plan.weeks), QString::number(plan.months)));
}

void BackupPage::ShowLast() {
    const upkeep::BackupState state = upkeep::ReadBackupState(ProgramFolder());
    const bool hasFailed = state.failed.isValid() && !(state.failed < state.good);
    ui.lblLast->setText(
        hasFailed ? tr("%1.\nThe try of %2 failed: %3").arg(LastBackupInWords(), MomentText(state.failed), state.why)
                  : tr("%1.").arg(LastBackupInWords()));
}

void BackupPage::ShowBackups() {
    backups_.clear();
    if (!TheInstallation.backup.folder.isEmpty())
        backups_ = upkeep::ListBackups(TheInstallation.backup.folder, ProgramFolder());
    ui.lstBackups->Clear();
    for (const BackupFacts& backup : std::as_const(backups_)) {
        const bool hasSold = backup.lastDay.day.isValid();
        const QString state = !backup.fault.isEmpty() ? backup.fault
                              : backup.isOwn          ? tr("Checked")
                                                      : tr("Checked, of %1").arg(backup.registerName);
        ui.lstBackups->Add({backup.made.isValid() ? MomentText(backup.made) : backup.Name(), SizeText(backup.bytes),
                            QString::number(backup.invoices),
                            hasSold ? values::DateText(backup.lastDay.day) : QString(),
                            hasSold ? AmountText(backup.lastDay.takings) : QString(), state});
    }
    ui.cmdRestore->setEnabled(!backups_.isEmpty());
    if (!backups_.isEmpty()) ui.lstBackups->Select(0);
}

void BackupPage::cmdFolder_Click() {
    const QString folder = forms::AskFolder(this, tr("The folder for backups"));
    if (folder.isEmpty()) return;
    upkeep::ChooseBackupFolder(folder, ProgramFolder());
    ReadInstallation();
    Form_Activate();
}

void BackupPage::cmdNow_Click() {
    try {
        RunBeside(this, tr("The backup is made."), [](const upkeep::Progress& progress) {
            upkeep::MakeBackup(ProgramFolder(), TheInstallation.backup, progress);
        });
    } catch (const values::Error& error) {
        if (error.Number() != store::Cancelled) forms::Tell(error.Description(), forms::Icon::Warning, Caption());
    }
    Form_Activate();
    Q_EMIT ShopChanged();
}

void BackupPage::cmdRestore_Click() {
    const int row = ui.lstBackups->Selected();
    if (row < 0) return;
    const BackupFacts backup = backups_[row];
    if (!backup.fault.isEmpty())
        return forms::Tell(tr("This backup can't be restored: %1").arg(backup.fault), forms::Icon::Warning, Caption());
    upkeep::RestorePreview preview;
    RunBeside(this, tr("The backup is looked at."),
              [&](const upkeep::Progress&) { preview = upkeep::PreviewRestore(ProgramFolder(), backup); });
    RestoreForm question(preview);
    question.ShowModal();
    if (question.IsWanted()) Restore(backup);
    Form_Activate();
    Q_EMIT ShopChanged();
}

// The window works on the same stores; whatever becomes of them, they are opened again.
void BackupPage::Restore(const BackupFacts& backup) {
    bool goes = true;
    Q_EMIT ShopGoes(&goes);
    if (!goes) return;
    upkeep::Restored restored;
    QString why;
    CloseShop();
    try {
        RunBeside(this, tr("The backup is brought back."), [&](const upkeep::Progress& progress) {
            restored = upkeep::RestoreBackup(ProgramFolder(), backup, progress);
        });
    } catch (const values::Error& error) {
        why = error.Description();
    }
    OpenShop();
    if (!why.isEmpty()) return forms::Tell(tr("Nothing was restored. %1").arg(why), forms::Icon::Warning, Caption());
    forms::Inform(tr("The shop is as it was in the backup of %1, with %2 invoices. What was replaced is kept in %3.")
                      .arg(MomentText(backup.made), QString::number(restored.invoices), restored.keptAs),
                  Caption());
}

}  // namespace manager
