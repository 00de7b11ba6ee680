#include "manager/backup/RestoreForm.h"

#include "core/Settings.h"
#include "manager/Texts.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;

namespace manager {

RestoreForm::RestoreForm(const upkeep::RestorePreview& preview) {
    ui.setupUi(this);
    ui.lstDays->SetColumns({{tr("Day"), Qt::AlignLeft, 120},
                            {tr("Invoices now"), Qt::AlignRight, 120},
                            {tr("Takings now"), Qt::AlignRight, 130},
                            {tr("Invoices there"), Qt::AlignRight, 120},
                            {tr("Takings there"), Qt::AlignRight, 130},
                            {u""_s, Qt::AlignLeft, -1}});
    ui.lstDays->SetEmptyText(tr("Neither the shop nor the backup has sold anything yet."));
    FunctionKeys({{Qt::Key_Escape, ui.cmdLeave}});
    On(ui.cmdReplace, &RestoreForm::cmdReplace_Click);
    On(ui.cmdLeave, &RestoreForm::cmdLeave_Click);
    ui.lblBackup->setText(
        tr("The backup of %1, with %2 invoices. Takings are in %3.")
            .arg(MomentText(preview.backup.made), QString::number(preview.backup.invoices), TheSettings.Currency));
    const auto differing = std::ranges::count_if(preview.days, [](const auto& day) { return !day.IsSame(); });
    if (!preview.liveFault.isEmpty())
        ui.lblChanges->setText(tr("The shop can't be read: %1").arg(preview.liveFault));
    else if (differing == 0)
        ui.lblChanges->setText(tr("All days are the same in the shop and in the backup."));
    else
        ui.lblChanges->setText(
            tr("Days that differ: %1. They stand first. What the shop has now and the backup has not "
               "will be gone from it; all that is replaced is kept in a folder beside it.")
                .arg(differing));
    ShowDays(preview.days);
}

void RestoreForm::ShowDays(const QList<upkeep::DayInTwo>& days) {
    for (const upkeep::DayInTwo& day : days)
        ui.lstDays->Add({day.one.day.isValid() ? values::DateText(day.one.day) : tr("without a day"),
                         QString::number(day.one.invoices), AmountText(day.one.takings),
                         QString::number(day.other.invoices), AmountText(day.other.takings),
                         day.IsSame() ? QString() : tr("differs")});
    if (!days.isEmpty()) ui.lstDays->Select(0);
}

void RestoreForm::cmdReplace_Click() {
    isAgreed_ = true;
    Unload();
}

void RestoreForm::cmdLeave_Click() {
    Unload();
}

}  // namespace manager
