// The save: each field is written as its control stands, and the running settings that follow a save are set on the
// way.

#include "config/CheckValue.h"
#include "config/RegisterNumber.h"
#include "config/frmOptions.h"
#include "core/Settings.h"
#include "forms/Controls.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

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
    forms::Inform(u"Changes are saved."_s, Caption());
    Unload();
}

void frmOptions::StoreOptions(qint16 kasa) {
    TheSettings.DisplejKupca = ui.chkDisplejKupca->isChecked();
    rsOptions_[u"DisplejKupca"] = TheSettings.DisplejKupca;
    TheSettings.Kusur = ui.chkKusur->isChecked();
    rsOptions_[u"Kusur"] = TheSettings.Kusur;
    rsOptions_[u"PrikaziOdmah"] = ui.chkPrikaziOdmah->isChecked();
    TheSettings.PrintKasir = CheckText(*ui.chkPrintKasir);
    rsOptions_[u"PrintKasir"] = TheSettings.PrintKasir;
    TheSettings.TrakaRacunaFileDA = ui.chkTrakaRacunaFileDA->isChecked();
    rsOptions_[u"TrakaRacunaFileDA"] = TheSettings.TrakaRacunaFileDA;
    rsOptions_[u"StanjeKaseVidljivo"] = CheckText(*ui.chkShowAmount);
    rsOptions_[u"ChangeUser"] = TheSettings.ChangeUser;
    TheSettings.Currency = ui.txtCurrency->text();
    rsOptions_[u"Currency"] = TheSettings.Currency;
    // The fiscal mode and its file work from the next start on, as footer, server and register number do.
    rsOptions_[u"FiskalniRacunDA"] = CheckText(*ui.chkFiskalniRacunDA);
    rsOptions_[u"FiskalniFile"] = ui.txtFiskalniFile->text();
    tipRacuna_.Save(rsOptions_);
    posMonitor_.Save(rsOptions_);
    printerZaRacun_.Save(rsOptions_);
    emulacija_.Save(rsOptions_);
    TheSettings.RezacPapira = CheckText(*ui.chkRezacPapira);
    rsOptions_[u"RezacPapira"] = TheSettings.RezacPapira;
    printerZaIzvjestaj_.Save(rsOptions_);
    rekapPoreza_.Save(rsOptions_);
    rsOptions_[u"Footer"] = ui.txtFooter->text();
    rsOptions_[u"ServerName"] = ui.txtServerName->text();
    rsOptions_[u"Kasa"] = kasa;
    TheSettings.MjestoProdaje = ui.txtMjestoProdaje->text();
    rsOptions_[u"MjestoProdaje"] = TheSettings.MjestoProdaje;
}
