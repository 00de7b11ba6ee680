#include "manager/backup/RestoreForm.h"

#include "manager/Texts.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;

namespace manager {

RestoreForm::RestoreForm(const upkeep::Backup& backup, const std::vector<upkeep::DayDifference>& days) {
    ui.setupUi(this);
    ui.lstDays->SetColumns({{tr("Day"), Qt::AlignLeft, 130},
                            {tr("Invoices now"), Qt::AlignRight, 120},
                            {tr("Takings now"), Qt::AlignRight, 130},
                            {tr("Invoices in the backup"), Qt::AlignRight, 170},
                            {tr("Takings in the backup"), Qt::AlignRight, -1}});
    ui.lstDays->SetEmptyText(tr("Both have the same sales on every day."));
    ui.lblWhat->setText(tr("The backup of %1. These days would be others afterwards; what is replaced is kept in a "
                           "folder beside it. No till may be running.")
                            .arg(MomentText(backup.made)));
    for (const auto& [day, now, then] : days)
        ui.lstDays->Add({values::DateText(day), QString::number(now.invoices), AmountText(now.takings),
                         QString::number(then.invoices), AmountText(then.takings)});
    FunctionKeys({{Qt::Key_Escape, ui.cmdLeave}});
    On(ui.cmdReplace, &RestoreForm::cmdReplace_Click);
    On(ui.cmdLeave, &RestoreForm::cmdLeave_Click);
}

void RestoreForm::cmdReplace_Click() {
    isAgreed_ = true;
    Unload();
}

void RestoreForm::cmdLeave_Click() {
    Unload();
}

}  // namespace manager
