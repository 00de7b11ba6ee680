#include "manager/backup/BackupPage.h"

#include "core/Installation.h"
#include "forms/FileDialog.h"
#include "forms/MsgBox.h"
#include "manager/Beside.h"
#include "manager/Texts.h"
#include "manager/backup/BackupWords.h"
#include "manager/backup/RestoreForm.h"
#include "output/Folder.h"
#include "store/StoreError.h"
#include "upkeep/Backup.h"
#include "upkeep/BackupPlace.h"
#include "upkeep/BackupState.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;
using output::ProgramFolder;
using upkeep::BackupFacts;
using upkeep::BackupPlan;

namespace manager {

BackupPage::BackupPage(QWidget* parent) : PageOfBoxes(parent) {
    ui.setupUi(this);
    ui.spnDays->setRange(BackupPlan::LeastDays, BackupPlan::Most);
    for (QSpinBox* count : {ui.spnWeeks, ui.spnMonths}) count->setRange(0, BackupPlan::Most);
    ui.lstBackups->SetColumns({{tr("Made"), Qt::AlignLeft, 190},
                               {tr("Size"), Qt::AlignRight, 80},
                               {tr("Invoices"), Qt::AlignRight, 80},
                               {tr("Last day"), Qt::AlignLeft, 100},
                               {tr("Its takings"), Qt::AlignRight, 110},
                               {tr("State"), Qt::AlignLeft, -1}});
    On(ui.cmdChoose, &BackupPage::cmdChoose_Click);
    On(ui.cmdSave, &BackupPage::cmdSave_Click);
    On(ui.cmdBackup, &BackupPage::cmdBackup_Click);
    On(ui.cmdRestore, &BackupPage::cmdRestore_Click);
    OnDoubleClick(ui.lstBackups, &BackupPage::cmdRestore_Click);
}

void BackupPage::Form_Load() {
    FillBoxes();
}

// A till may have made one meanwhile.
void BackupPage::Form_Activate() {
    ShowAll();
}

void BackupPage::ShowAll() {
    const int row = ui.lstBackups->Selected();
    const QString chosen = row < 0 ? QString() : backups_[row].path;
    ReadFolder();
    ShowFolder();
    ShowState();
    ShowBackups(chosen);
    Q_EMIT ShopChanged();
}

void BackupPage::Fill() {
    const BackupPlan& plan = TheInstallation.backup;
    ui.spnDays->setValue(plan.days);
    ui.spnWeeks->setValue(plan.weeks);
    ui.spnMonths->setValue(plan.months);
    ui.cmdBackup->setEnabled(!plan.folder.isEmpty());
}

// It may lie on a share that is slow, or gone.
void BackupPage::ReadFolder() {
    const QString folder = TheInstallation.backup.folder;
    backups_.clear();
    ui.lstBackups->Clear();
    ui.lstBackups->SetEmptyText(tr("There are no backups yet."));
    if (folder.isEmpty()) return;
    try {
        RunBeside(this, tr("The folder of the backups is being read."), [&](const upkeep::Progress& progress) {
            isOnSameDisk_ = upkeep::IsOnSameDisk(folder, ProgramFolder());
            backups_ = upkeep::ListBackups(folder, ProgramFolder(), progress);
        });
    } catch (const store::StoreError& error) {
        if (error.Number() != store::Cancelled) throw;
        ui.lstBackups->SetEmptyText(tr("The folder was not read to its end."));
    }
}

void BackupPage::ShowFolder() {
    const BackupPlan& plan = TheInstallation.backup;
    if (plan.folder.isEmpty())
        ui.lblFolder->setText(
            tr("No folder has been chosen yet, and the till makes no backups. Choose one on a second "
               "disk, on a stick or in the network."));
    else if (isOnSameDisk_)
        ui.lblFolder->setText(
            tr("Backups go to %1, on the same disk as the shop: if it breaks, both are lost.").arg(plan.folder));
    else
        ui.lblFolder->setText(tr("Backups go to %1.").arg(plan.folder));
    ui.lblFolder->setToolTip(plan.folder);
}

void BackupPage::ShowState() {
    const upkeep::BackupState state = upkeep::ReadBackupState(ProgramFolder());
    const bool hasFailed = state.failed.isValid() && !(state.failed < state.good);
    ui.lblState->setText(
        hasFailed ? tr("%1.\nThe try of %2 failed: %3").arg(LastBackupInWords(), MomentText(state.failed), state.why)
                  : tr("%1.").arg(LastBackupInWords()));
    ui.lblState->setToolTip(ui.lblState->text());
}

void BackupPage::ShowBackups(const QString& chosen) {
    for (const BackupFacts& backup : std::as_const(backups_)) {
        const bool hasSold = backup.lastDay.day.isValid();
        const QString state = !backup.fault.isEmpty() ? backup.fault
                              : backup.isOwn          ? tr("Checked")
                                                      : tr("Checked, of %1").arg(backup.registerName);
        ui.lstBackups->Add({backup.made.isValid() ? MomentText(backup.made) : backup.Name(), SizeText(backup.bytes),
                            QString::number(backup.invoices),
                            hasSold ? values::DateText(backup.lastDay.day) : QString(),
                            hasSold ? AmountText(backup.lastDay.takings) : QString(), state});
        if (backup.path == chosen) ui.lstBackups->Select(ui.lstBackups->Count() - 1);
    }
    ui.cmdRestore->setEnabled(!backups_.isEmpty());
    if (ui.lstBackups->Selected() < 0 && !backups_.isEmpty()) ui.lstBackups->Select(0);
}

void BackupPage::cmdChoose_Click() {
    const QString folder = forms::AskFolder(this, tr("The folder for backups"));
    if (folder.isEmpty()) return;
    upkeep::ChooseBackupFolder(folder, ProgramFolder());
    ReadInstallation();
    ui.cmdBackup->setEnabled(true);
    ShowAll();
}

void BackupPage::cmdSave_Click() {
    StoreBoxes();
}

bool BackupPage::Store() {
    upkeep::KeepSoMany(
        {.folder = {}, .days = ui.spnDays->value(), .weeks = ui.spnWeeks->value(), .months = ui.spnMonths->value()},
        ProgramFolder());
    ReadInstallation();
    return true;
}

void BackupPage::cmdBackup_Click() {
    try {
        RunBeside(this, tr("The register is being backed up."), [](const upkeep::Progress& progress) {
            upkeep::MakeBackup(ProgramFolder(), TheInstallation.backup, progress);
        });
    } catch (const values::Error& error) {
        if (error.Number() != store::Cancelled) forms::Tell(error.Description(), forms::Icon::Warning, Caption());
    }
    ShowAll();
}

void BackupPage::cmdRestore_Click() {
    const int row = ui.lstBackups->Selected();
    if (row < 0) return;
    const BackupFacts backup = backups_[row];
    if (!backup.fault.isEmpty())
        return forms::Tell(tr("This backup can't be restored: %1").arg(backup.fault), forms::Icon::Warning, Caption());
    upkeep::RestorePreview preview;
    RunBeside(this, tr("The shop and the backup are being compared."),
              [&](const upkeep::Progress&) { preview = upkeep::PreviewRestore(ProgramFolder(), backup); });
    RestoreForm question(preview);
    question.ShowModal();
    if (question.IsAgreed()) Restore(backup);
}

void BackupPage::Restore(const BackupFacts& backup) {
    upkeep::Restored restored;
    QString why;
    try {
        const bool isDone = RunWithoutShop(tr("The backup is being brought back."), [&](const auto& progress) {
            restored = upkeep::RestoreBackup(ProgramFolder(), backup, progress);
        });
        if (!isDone) return;
    } catch (const values::Error& error) {
        why = error.Description();
    }
    FillBoxes();
    ShowAll();
    if (!why.isEmpty()) return forms::Tell(tr("Nothing was restored. %1").arg(why), forms::Icon::Warning, Caption());
    forms::Inform(tr("The shop is as it was in the backup of %1, with %2 invoices. What was replaced is kept in %3.")
                      .arg(MomentText(backup.made), QString::number(restored.invoices), restored.keptAs),
                  Caption());
}

}  // namespace manager
