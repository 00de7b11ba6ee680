// The save: each field is written as its control stands, and the running settings that follow a save are set on the
// way.

#include "config/CheckValue.h"
#include "config/RegisterNumber.h"
#include "config/frmOptions.h"
#include "forms/Controls.h"
#include "forms/MsgBox.h"

void frmOptions::cmdOK_Click() {
    const auto kasa = RegisterNumber(ui.txtKasa->text(), Caption());
    if (!kasa) {
        ui.SSTab1->setCurrentWidget(ui.pageNetwork);
        forms::GoTo(ui.txtKasa);
        return;
    }
    rsOptions_.Edit();
    StoreOptions(*kasa);
    rsOptions_.Update();
    forms::Inform(tr("Changes are saved."), Caption());
    Unload();
}

void frmOptions::StoreOptions(qint16 kasa) {
    rsOptions_.SaveAndUse(&Settings::DisplejKupca, ui.chkDisplejKupca->isChecked());
    rsOptions_.SaveAndUse(&Settings::Kusur, ui.chkKusur->isChecked());
    rsOptions_[u"PrikaziOdmah"] = ui.chkPrikaziOdmah->isChecked();
    rsOptions_.SaveAndUse(&Settings::PrintKasir, CheckText(*ui.chkPrintKasir));
    rsOptions_.SaveAndUse(&Settings::TrakaRacunaFileDA, ui.chkTrakaRacunaFileDA->isChecked());
    rsOptions_[&Settings::StanjeKaseVidljivo] = CheckText(*ui.chkShowAmount);
    rsOptions_[&Settings::ChangeUser] = TheSettings.ChangeUser;
    rsOptions_.SaveAndUse(&Settings::Currency, ui.txtCurrency->text());
    // The fiscal mode and its file work from the next start on, as footer, server and register number do.
    rsOptions_[&Settings::FiskalniRacunDA] = CheckText(*ui.chkFiskalniRacunDA);
    rsOptions_[&Settings::FiskalniFile] = ui.txtFiskalniFile->text();
    tipRacuna_.Save(rsOptions_);
    posMonitor_.Save(rsOptions_);
    printerZaRacun_.Save(rsOptions_);
    emulacija_.Save(rsOptions_);
    rsOptions_.SaveAndUse(&Settings::RezacPapira, CheckText(*ui.chkRezacPapira));
    printerZaIzvjestaj_.Save(rsOptions_);
    rekapPoreza_.Save(rsOptions_);
    rsOptions_[&Settings::Footer] = ui.txtFooter->text();
    rsOptions_[&Settings::ServerName] = ui.txtServerName->text();
    rsOptions_[&Settings::Kasa] = kasa;
    rsOptions_.SaveAndUse(&Settings::MjestoProdaje, ui.txtMjestoProdaje->text());
}
