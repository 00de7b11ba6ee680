#include "manager/HealthPage.h"

#include <QItemSelectionModel>

#include "manager/Beside.h"
#include "manager/SupportForm.h"
#include "output/Folder.h"
#include "upkeep/Advice.h"
#include "upkeep/CheckRegister.h"
#include "upkeep/SupportReport.h"

using namespace Qt::StringLiterals;

namespace manager {

HealthPage::HealthPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.lstFindings->SetColumns({{tr("Kind"), Qt::AlignLeft, 100},
                                {tr("What was found"), Qt::AlignLeft, -1},
                                {tr("What to do"), Qt::AlignLeft, 320}});
    ui.lstFindings->SetEmptyText(tr("Nothing was found."));
    connect(ui.lstFindings->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            Guarded(&HealthPage::lstFindings_Chosen));
    On(ui.cmdLook, &HealthPage::cmdLook_Click);
    On(ui.cmdReport, &HealthPage::cmdReport_Click);
}

void HealthPage::Form_Load() {
    cmdLook_Click();
}

void HealthPage::cmdLook_Click() {
    upkeep::Findings findings;
    RunBeside(this, tr("The shop is looked over."),
              [&](const Progress&) { findings = upkeep::CheckRegister(output::ProgramFolder()); });
    ui.lstFindings->Clear();
    for (const QString& line : findings.DamageLines())
        ui.lstFindings->Add({tr("Damage"), line, tr("Bring back the last good backup, and ask whoever helps you.")});
    for (const auto& [kind, cases] : findings.NoteCounts()) {
        const upkeep::Advice advice = upkeep::AdviceOn(kind);
        const QString line = findings.NoteLine(kind);
        ui.lstFindings->Add(
            {tr("Note"), advice.meaning.isEmpty() ? line : advice.meaning + line.mid(kind.size()), advice.advice});
    }
    for (const QString& line : findings.FactLines()) ui.lstFindings->Add({tr("Fact"), line, {}});
    if (ui.lstFindings->Count() > 0) ui.lstFindings->Select(0);
    const qsizetype notes = findings.NoteCounts().size();
    ui.lblVerdict->setText(
        !findings.IsSound() ? tr("Something is damaged.")
        : notes == 0        ? tr("Both stores are sound, and nothing is to be done.")
                            : tr("Both stores are sound. %n thing(s) to look at:", nullptr, static_cast<int>(notes)));
}

// Whole, whatever the columns have room for.
void HealthPage::lstFindings_Chosen() {
    const int row = ui.lstFindings->Selected();
    const QString found = row < 0 ? QString() : ui.lstFindings->Text(row, 1);
    const QString advice = row < 0 ? QString() : ui.lstFindings->Text(row, 2);
    ui.lblChosen->setText(advice.isEmpty() ? found : tr("%1\n%2").arg(found, advice));
}

void HealthPage::cmdReport_Click() {
    QString text;
    RunBeside(this, tr("The file is written."),
              [&](const Progress&) { text = upkeep::SupportReport(output::ProgramFolder()); });
    SupportForm(text).ShowModal();
}

}  // namespace manager
