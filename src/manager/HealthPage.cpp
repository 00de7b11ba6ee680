#include "manager/HealthPage.h"

#include "output/Folder.h"
#include "upkeep/CheckRegister.h"

using namespace Qt::StringLiterals;

namespace manager {

HealthPage::HealthPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.lstFindings->SetColumns({{tr("Kind"), Qt::AlignLeft, 110}, {tr("What was found"), Qt::AlignLeft, -1}});
    ui.lstFindings->SetEmptyText(tr("Nothing was found."));
    On(ui.cmdLook, &HealthPage::cmdLook_Click);
}

void HealthPage::Form_Load() {
    cmdLook_Click();
}

void HealthPage::cmdLook_Click() {
    const upkeep::Findings findings = upkeep::CheckRegister(output::ProgramFolder());
    ui.lstFindings->Clear();
    for (const QString& line : findings.DamageLines()) ui.lstFindings->Add({tr("Damage"), line});
    for (const QString& line : findings.NoteLines()) ui.lstFindings->Add({tr("Note"), line});
    for (const QString& line : findings.FactLines()) ui.lstFindings->Add({tr("Fact"), line});
    ui.lblVerdict->setText(findings.IsSound() ? tr("Both stores are sound.") : tr("Something is damaged."));
}

}  // namespace manager
