#include "manager/health/HealthPage.h"

#include "manager/Beside.h"
#include "manager/health/SupportForm.h"
#include "output/Folder.h"
#include "upkeep/CheckRegister.h"
#include "upkeep/health/SupportReport.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;
using upkeep::HealthLevel;

namespace manager {

namespace {

// A sign and a word, which can be told apart without colour.
QString MarkOf(HealthLevel level) {
    switch (level) {
        case HealthLevel::Good:
            return HealthPage::tr("✓  Good");
        case HealthLevel::Damage:
            return HealthPage::tr("✖  Damage");
        case HealthLevel::Note:
            return HealthPage::tr("!  Note");
        case HealthLevel::Fact:
            break;
    }
    return HealthPage::tr("–  Fact");
}

}  // namespace

HealthPage::HealthPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.lstFindings->SetColumns({{tr("Kind"), Qt::AlignLeft, 110}, {tr("What was found"), Qt::AlignLeft, -1}});
    ui.lstFindings->SetEmptyText(tr("Nothing was looked at yet."));
    connect(ui.lstFindings, &forms::ListView::RowChosen, this, Guarded(&HealthPage::lstFindings_Chosen));
    On(ui.cmdLook, &HealthPage::cmdLook_Click);
    On(ui.cmdReport, &HealthPage::cmdReport_Click);
}

void HealthPage::Form_Load() {
    lstFindings_Chosen();
    cmdLook_Click();
}

QString HealthPage::Look() {
    try {
        RunBeside(this, tr("The shop is looked over."), [this](const upkeep::Progress& progress) {
            findings_ = upkeep::CheckRegister(output::ProgramFolder(), progress);
        });
        return {};
    } catch (const store::StoreError& error) {
        if (error.Number() != store::Cancelled) throw;
        return tr("The look was left before its end.");
    } catch (const values::FileError& error) {
        return tr("The look can't be ended. %1").arg(error.Description());
    }
}

void HealthPage::cmdLook_Click() {
    lines_.clear();
    ui.lstFindings->Clear();
    ui.lblVerdict->setText(tr("The shop is being looked at ..."));
    if (const QString why = Look(); !why.isEmpty()) return ui.lblVerdict->setText(why);
    lines_ = upkeep::HealthLinesOf(findings_);
    ShowLines();
}

void HealthPage::ShowLines() {
    ui.lstFindings->BeginFill();
    for (const upkeep::HealthLine& line : lines_) ui.lstFindings->Add({MarkOf(line.level), line.what});
    ui.lstFindings->EndFill();
    ui.lblVerdict->setText(Verdict());
    // What has to be done comes to the front.
    const auto first = std::ranges::find_if(
        lines_, [](const auto& line) { return line.level == HealthLevel::Damage || line.level == HealthLevel::Note; });
    ui.lstFindings->Select(first == lines_.end() ? 0 : static_cast<int>(first - lines_.begin()));
    ui.lstFindings->BringIntoView(0);
}

QString HealthPage::Verdict() const {
    if (!findings_.IsSound()) return tr("Something is damaged. Read what to do before you go on selling.");
    const int notes = static_cast<int>(
        std::ranges::count(lines_, HealthLevel::Note, [](const upkeep::HealthLine& line) { return line.level; }));
    if (notes > 0) return tr("Nothing is damaged. Notes of what does not fit together: %n.", nullptr, notes);
    return tr("All is well.");
}

void HealthPage::lstFindings_Chosen() {
    const int row = ui.lstFindings->Selected();
    const bool isShown = row >= 0 && row < static_cast<int>(lines_.size());
    const upkeep::HealthLine line = isShown ? lines_[static_cast<size_t>(row)] : upkeep::HealthLine{};
    ui.panelAdvice->setVisible(isShown);
    ui.lblWhat->setText(line.what);
    ui.lblCases->setText(line.cases);
    ui.lblCases->setVisible(!line.cases.isEmpty());
    ui.lblAdvice->setText(line.advice.isEmpty() ? tr("There is nothing to do.")
                                                : tr("What to do: %1").arg(line.advice));
}

// Also where a look did not come to its end: the report tells why.
void HealthPage::cmdReport_Click() {
    QString text;
    try {
        RunBeside(this, tr("The report is made."), [&text](const upkeep::Progress& progress) {
            text = upkeep::SupportReport(output::ProgramFolder(), progress);
        });
    } catch (const store::StoreError& error) {
        if (error.Number() != store::Cancelled) throw;
        return;
    }
    SupportForm(text).ShowModal();
}

}  // namespace manager
