#include "manager/setup/RegisterStep.h"

#include "core/dbModule.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto OptionsQuery = u"SELECT * FROM Options"_s;

bool IsOn(store::Recordset& options, const QString& field) {
    return !options[field].IsNull() && options[field].YesNo();
}

}  // namespace

RegisterStep::RegisterStep() {
    ui.setupUi(this);
    ui.cboFiscal->addItem(tr("None"), u"0"_s);
    ui.cboFiscal->addItem(tr("Goods by their number (form 1)"), u"1"_s);
    ui.cboFiscal->addItem(tr("Goods by their code (form 2)"), u"2"_s);
}

void RegisterStep::Fill() {
    auto options = OptionsStore().OpenRecordset(OptionsQuery);
    ui.chkScanner->setChecked(options[u"SkenerPrimarno"].TextOrEmpty() == u"1");
    ui.chkCustomer->setChecked(IsOn(options, u"Kupac"_s));
    ui.chkNewInvoice->setChecked(IsOn(options, u"NoviRacunAutomatski"_s));
    ui.chkEndReport->setChecked(IsOn(options, u"PonudiZakljucak"_s));
    const auto& lines = options[u"PraznihLinijaPoslijeRacuna"];
    ui.spnBlankLines->setValue(lines.IsNull() ? 0 : static_cast<int>(lines.Whole()));
    ui.cboFiscal->setCurrentIndex(ui.cboFiscal->findData(options[u"FiskalniRacunDA"].TextOrEmpty()));
}

bool RegisterStep::Store() {
    auto options = OptionsStore().OpenRecordset(OptionsQuery);
    options.Edit();
    options[u"SkenerPrimarno"] = ui.chkScanner->isChecked() ? u"1"_s : u"0"_s;
    options[u"Kupac"] = ui.chkCustomer->isChecked();
    options[u"NoviRacunAutomatski"] = ui.chkNewInvoice->isChecked();
    options[u"PonudiZakljucak"] = ui.chkEndReport->isChecked();
    options[u"PraznihLinijaPoslijeRacuna"] = ui.spnBlankLines->value();
    if (ui.cboFiscal->currentIndex() >= 0) options[u"FiskalniRacunDA"] = ui.cboFiscal->currentData().toString();
    options.Update();
    return true;
}

}  // namespace manager
