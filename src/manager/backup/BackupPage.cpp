#include "manager/backup/BackupPage.h"

#include <QDir>

#include "core/Installation.h"
#include "core/dbModule.h"
#include "forms/FileDialog.h"
#include "forms/MsgBox.h"
#include "manager/Beside.h"
#include "manager/Start.h"
#include "manager/Texts.h"
#include "manager/backup/RestoreForm.h"
#include "output/Folder.h"
#include "upkeep/BackupState.h"
#include "values/Clock.h"
#include "values/DateText.h"
#include "values/FileError.h"
#include "values/IniEdit.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto Section = u"backup"_s;

}  // namespace

BackupPage::BackupPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.lstBackups->SetColumns({{tr("Made"), Qt::AlignLeft, 190},
                               {tr("Size"), Qt::AlignRight, 110},
                               {tr("Invoices"), Qt::AlignRight, 110},
                               {tr("Last day with sales"), Qt::AlignLeft, 170},
                               {tr("Takings of it"), Qt::AlignRight, -1}});
    ui.lstBackups->SetEmptyText(tr("There are no backups yet."));
    On(ui.cmdChoose, &BackupPage::cmdChoose_Click);
    On(ui.cmdSave, &BackupPage::cmdSave_Click);
    On(ui.cmdBackup, &BackupPage::cmdBackup_Click);
    On(ui.cmdRestore, &BackupPage::cmdRestore_Click);
}

void BackupPage::Form_Load() {
    ShowPlan();
    ShowBackups();
}

// A till may have made one meanwhile.
void BackupPage::Form_Activate() {
    ShowBackups();
}

void BackupPage::ShowPlan() {
    const upkeep::BackupPlan plan = upkeep::ReadBackupPlan(output::ProgramFolder());
    ui.txtFolder->setText(QDir::toNativeSeparators(plan.place));
    ui.spnDays->setValue(plan.kept.days);
    ui.spnWeeks->setValue(plan.kept.weeks);
    ui.spnMonths->setValue(plan.kept.months);
}

void BackupPage::ShowBackups() {
    const QString chosen = ui.lstBackups->Selected() < 0 ? QString() : ui.lstBackups->SelectedText();
    const upkeep::BackupState state = upkeep::ReadBackupState(output::ProgramFolder());
    const QString trouble = upkeep::BackupTrouble(state, values::Now());
    if (ui.txtFolder->text().isEmpty())
        ui.lblState->setText(
            tr("Choose a folder on another disk, a stick or a share. The till then makes a backup "
               "there on the first start of a day and at each End Report."));
    else if (!trouble.isEmpty())
        ui.lblState->setText(trouble);
    else
        ui.lblState->setText(
            state.good.isValid()
                ? tr("The last good backup: %1, %2.").arg(MomentText(state.good), SizeText(state.bytes))
                : tr("None was made yet."));
    backups_.clear();
    ui.lstBackups->Clear();
    if (!ui.txtFolder->text().isEmpty())
        backups_ = upkeep::BackupsIn(upkeep::FolderOfRegister(ui.txtFolder->text(), output::ProgramFolder()));
    for (const upkeep::Backup& backup : backups_)
        ui.lstBackups->Add({MomentText(backup.made), SizeText(backup.bytes), QString::number(backup.invoices),
                            backup.lastDay.isValid() ? values::DateText(backup.lastDay) : QString(),
                            backup.invoices > 0 ? AmountText(backup.lastTakings) : QString()});
    if (!backups_.empty()) ui.lstBackups->Select(std::max(0, ui.lstBackups->Find(chosen)));
    ui.cmdBackup->setEnabled(!ui.txtFolder->text().isEmpty());
    ui.cmdRestore->setEnabled(!backups_.empty());
}

void BackupPage::cmdChoose_Click() {
    const QString place = forms::AskFolder(this, tr("The folder for backups"));
    if (place.isEmpty()) return;
    const QString here = QDir(output::ProgramFolder()).canonicalPath() + u'/';
    if ((QDir(place).canonicalPath() + u'/').startsWith(here))
        return forms::Inform(
            tr("Choose a folder outside of the register's own: what happens to the one must not happen "
               "to the other."),
            Caption());
    upkeep::TakeAsPlace(place);
    ui.txtFolder->setText(place);
    cmdSave_Click();
}

void BackupPage::cmdSave_Click() {
    values::IniEdit ini(output::InProgramFolder(u"velton.ini"_s));
    ini.Set(Section, u"folder"_s, ui.txtFolder->text());
    ini.Set(Section, u"days"_s, QString::number(ui.spnDays->value()));
    ini.Set(Section, u"weeks"_s, QString::number(ui.spnWeeks->value()));
    ini.Set(Section, u"months"_s, QString::number(ui.spnMonths->value()));
    ini.Save();
    TheInstallation.backupFolder = ui.txtFolder->text();
    ShowBackups();
    Q_EMIT ShopChanged();
}

void BackupPage::cmdBackup_Click() {
    const upkeep::BackupPlan plan = upkeep::ReadBackupPlan(output::ProgramFolder());
    try {
        RunBeside(this, tr("The register is backed up."), [&plan](const Progress& progress) {
            upkeep::BackUpRegister(output::ProgramFolder(), plan.place, plan.kept, progress);
        });
    } catch (const values::Error& error) {
        if (error.Number() != store::Cancelled) forms::Inform(error.Description(), Caption());
    }
    ShowBackups();
    Q_EMIT ShopChanged();
}

void BackupPage::cmdRestore_Click() {
    const int chosen = ui.lstBackups->Selected();
    if (chosen < 0) return;
    const upkeep::Backup backup = backups_[static_cast<size_t>(chosen)];
    QString told;
    try {
        RestoreForm question(backup, upkeep::CompareWithBackup(output::ProgramFolder(), backup.path));
        question.ShowModal();
        if (!question.IsAgreed()) return;
        CloseStores();
        QString kept;
        RunBeside(this, tr("The backup is brought back."), [&](const Progress& progress) {
            kept = upkeep::RestoreRegister(output::ProgramFolder(), backup.path, progress);
        });
        told = tr("The shop is as it was at %1. What was replaced is kept in %2.").arg(MomentText(backup.made), kept);
    } catch (const values::Error& error) {
        if (error.Number() != store::Cancelled) forms::Inform(error.Description(), Caption());
    }
    OpenShop();
    Q_EMIT ShopChanged();
    if (!told.isEmpty()) ui.lblState->setText(told);
}

}  // namespace manager
