#include "manager/language/LanguagePage.h"

#include <QScopeGuard>

#include "core/Installation.h"
#include "output/Folder.h"
#include "receipts/SampleReceipt.h"
#include "values/IniEdit.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto Section = u"language"_s;

// Without a choice the till has its own texts.
void SetLanguage(values::IniEdit& ini, const QString& key, const QString& code) {
    code.isEmpty() ? ini.Remove(Section, key) : ini.Set(Section, key, code);
}

}  // namespace

LanguagePage::LanguagePage(QWidget* parent) : PageOfBoxes(parent) {
    ui.setupUi(this);
    for (QComboBox* box : {ui.cboScreens, ui.cboPaper}) {
        box->addItem(tr("As delivered"), QString());
        for (const values::Language& language : values::Languages()) box->addItem(language.name, language.code);
    }
    connect(ui.cboPaper, &QComboBox::currentIndexChanged, this, Guarded(&LanguagePage::ShowReceipt));
    On(ui.cmdStore, &LanguagePage::cmdStore_Click);
}

void LanguagePage::Form_Load() {
    FillBoxes();
    ShowReceipt();
}

void LanguagePage::Fill() {
    ui.cboScreens->setCurrentIndex(ui.cboScreens->findData(TheInstallation.screens));
    ui.cboPaper->setCurrentIndex(ui.cboPaper->findData(TheInstallation.paper));
}

void LanguagePage::Form_Activate() {
    ShowReceipt();
}

void LanguagePage::ShowReceipt() {
    const auto back = qScopeGuard([] { values::UseLanguage(values::Shown::OnPaper, TheInstallation.paper); });
    values::UseLanguage(values::Shown::OnPaper, ui.cboPaper->currentData().toString());
    ui.txtReceipt->ShowText(SampleReceipt(TheSettings));
}

void LanguagePage::cmdStore_Click() {
    StoreBoxes();
    ui.lblSaid->setText(tr("It is kept. The till and this program have it from their next start."));
}

bool LanguagePage::Store() {
    const QString screens = ui.cboScreens->currentData().toString(), paper = ui.cboPaper->currentData().toString();
    values::IniEdit ini(output::InProgramFolder(u"velton.ini"_s));
    SetLanguage(ini, u"screens"_s, screens);
    SetLanguage(ini, u"paper"_s, paper);
    ini.Save();
    TheInstallation.screens = screens;
    TheInstallation.paper = paper;
    values::UseLanguage(values::Shown::OnPaper, paper);
    return true;
}

}  // namespace manager
