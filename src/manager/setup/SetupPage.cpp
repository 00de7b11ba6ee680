#include "manager/setup/SetupPage.h"

#include <QPushButton>
#include <QSignalBlocker>

#include "manager/setup/HeadingStep.h"
#include "manager/setup/PasswordStep.h"
#include "manager/setup/RegisterStep.h"
#include "manager/setup/TaxesStep.h"
#include "manager/setup/UnitsStep.h"
#include "manager/setup/UsersStep.h"

namespace manager {

SetupPage::SetupPage(QWidget* parent) : PageOfBoxes(parent) {
    ui.setupUi(this);
    const std::pair<SetupStep*, QString> steps[] = {
        {new HeadingStep, tr("1 Receipt")},   {new TaxesStep, tr("2 Taxes")}, {new UnitsStep, tr("3 Units")},
        {new PasswordStep, tr("4 Password")}, {new UsersStep, tr("5 Users")}, {new RegisterStep, tr("6 Register")}};
    for (const auto& [step, name] : steps) {
        ui.tabSteps->addTab(step, name);
        step->mayLeave = [this] { return MayLeave(); };
        connect(step, &SetupStep::Filled, this, [this] {
            NoteBoxes();
            ui.lblSaved->clear();
        });
        // On a button Enter presses it.
        for (auto* control : step->findChildren<QWidget*>())
            if (control->focusPolicy() != Qt::NoFocus && !qobject_cast<QPushButton*>(control)) EnterMovesOn({control});
        connect(step, &SetupStep::ShopChanged, this, &SetupPage::ShopChanged);
    }
    setFocusProxy(steps[0].first);
    TabLast({ui.cmdSave, ui.cmdNext});
    connect(ui.tabSteps, &QTabWidget::currentChanged, this, Guarded(&SetupPage::tabSteps_Changed));
    On(ui.cmdSave, &SetupPage::cmdSave_Click);
    On(ui.cmdNext, &SetupPage::cmdNext_Click);
}

void SetupPage::Form_Load() {
    FillBoxes();
}

// A till, or another page, may have changed what an untouched step shows.
void SetupPage::Form_Activate() {
    if (!IsChanged()) FillBoxes();
}

SetupStep& SetupPage::Step() const {
    return static_cast<SetupStep&>(*ui.tabSteps->widget(shown_));
}

void SetupPage::tabSteps_Changed() {
    if (!MayLeave()) {
        const QSignalBlocker blocker(ui.tabSteps);
        return ui.tabSteps->setCurrentIndex(shown_);
    }
    ui.lblSaved->clear();
    shown_ = ui.tabSteps->currentIndex();
    FillBoxes();
    ui.cmdNext->setEnabled(shown_ + 1 < ui.tabSteps->count());
}

void SetupPage::cmdSave_Click() {
    ui.lblSaved->clear();
    if (!StoreBoxes()) return;
    ui.lblSaved->setText(tr("Saved."));
}

void SetupPage::cmdNext_Click() {
    ui.tabSteps->setCurrentIndex(shown_ + 1);
}

}  // namespace manager
