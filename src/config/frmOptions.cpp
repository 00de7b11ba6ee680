#include "config/frmOptions.h"

#include "config/CheckValue.h"
#include "config/frmWinPrinter.h"
#include "core/mdiORVA.h"
#include "forms/MsgBox.h"
#include "forms/Scrollable.h"
#include "values/Error.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

frmOptions::frmOptions(int tab) {
    ui.setupUi(this);
    for (int page = 0; page < ui.SSTab1->count(); ++page) forms::MakeScrollable(ui.SSTab1->widget(page));
    ui.SSTab1->setCornerWidget(ui.Tlbr1);
    ui.SSTab1->setCurrentIndex(tab);

    StoreErrorsEndProgram();
    HelpAndClose(ui.cmdHelp, ui.cmdCancel, {Qt::Key_Escape, Qt::Key_F12});
    EnterMovesOn();
    HighlightOnFocus({ui.txtCurrency, ui.txtTrakaRacunaFile, ui.txtFiskalniFile, ui.txtMjestoProdaje, ui.txtRacun,
                      ui.txtFooter, ui.txtServerName, ui.txtKasa});
    NumericKeys({ui.txtRacun});
    Keypad({ui.txtKasa});

    printerZaRacun_ = {
        &Settings::PrinterZaRacun,
        {{ui.optPrinterZaRacun1, u"1"_s}, {ui.optPrinterZaRacun2, u"2"_s}, {ui.optPrinterZaRacun3, u"3"_s}}};
    emulacija_ = {&Settings::Emulacija, {{ui.optEpson, u"1"_s}, {ui.optStar, u"2"_s}}};
    printerZaIzvjestaj_ = {&Settings::PrinterZaIzvjestaj,
                           {{ui.optPrinterZaIzvjestaj1, u"1"_s},
                            {ui.optPrinterZaIzvjestaj2, u"2"_s},
                            {ui.optPrinterZaIzvjestaj3, u"3"_s}}};
    // The first does nothing: what the second has set stays until the row is changed by other means.
    posMonitor_ = {&Settings::POSMonitor,
                   {{.button = ui.optPOSMonitor1, .text = u"1"_s, .sets = false}, {ui.optPOSMonitor2, u"2"_s}}};
    tipRacuna_ = {&Settings::TipRacuna,
                  {{ui.optTipRacuna1, u"1"_s},
                   {ui.optTipRacuna2, u"2"_s},
                   {ui.optTipRacuna3, u"3"_s},
                   {ui.optTipRacuna4, u"4"_s},
                   {ui.optTipRacuna5, u"5"_s},
                   {ui.optTipRacuna6, u"6"_s},
                   {ui.optTipRacuna7, u"7"_s}}};
    rekapPoreza_ = {&Settings::RekapPoreza, {{ui.optRekapPoreza1, u"1"_s}, {ui.optRekapPoreza2, u"2"_s}}};

    On(ui.cmdPodesiWinPrinter, &frmOptions::cmdPodesiWinPrinter_Click);
    On(ui.chkShowAmount, &frmOptions::chkShowAmount_Click);
    On(ui.chkAskPassword, &frmOptions::chkAskPassword_Click);
    On(ui.chkFiskalniRacunDA, &frmOptions::chkFiskalniRacunDA_Click);
    On(ui.cmdUradi, &frmOptions::cmdUradi_Click);
    On(ui.cmdOK, &frmOptions::cmdOK_Click);
    TieToolBar(ui.Tlbr1, {{ui.save, ui.cmdOK}, {ui.help, ui.cmdHelp}, {ui.close, ui.cmdCancel}});
    // The work begins on the page, not on its tab.
    const QList<QWidget*> first{ui.optPrinterZaRacun1, ui.txtMjestoProdaje, ui.optTipRacuna1, ui.txtServerName};
    first[tab]->setFocus();
}

void frmOptions::Form_Load() {
    rsOptions_ = OptionsRecord::OfThisRegister();
    ShowProgram();
    ShowInvoice();
    ShowDetails();
    ShowNetwork();
}

// An invoice number has no decimals, so that not even a separator passes.
bool frmOptions::Form_KeyDown(QKeyEvent& key) {
    if (ui.txtRacun->hasFocus() && (key.text() == u"." || key.text() == u",")) return true;
    return OfficeForm::Form_KeyDown(key);
}

void frmOptions::ShowProgram() {
    printerZaRacun_.Load(rsOptions_);
    emulacija_.Load(rsOptions_);
    ui.chkRezacPapira->setChecked(rsOptions_[&Settings::RezacPapira].TextOrEmpty() == u"1");
    printerZaIzvjestaj_.Load(rsOptions_);
    posMonitor_.Load(rsOptions_);
    ui.txtCurrency->setText(rsOptions_[&Settings::Currency].TextOrEmpty());
    ui.chkShowAmount->setChecked(ReadsAsTrue(TheSettings.StanjeKaseVidljivo));
    TheSettings.ChangeUser = rsOptions_[&Settings::ChangeUser].TextOrEmpty();
    ui.chkAskPassword->setChecked(TheSettings.ChangeUser == u"2");
    ui.chkKusur->setChecked(rsOptions_.IsYes(&Settings::Kusur));
    ui.chkPrikaziOdmah->setChecked(rsOptions_.IsYes(u"PrikaziOdmah"));
    ui.chkTrakaRacunaFileDA->setChecked(rsOptions_.IsYes(&Settings::TrakaRacunaFileDA));
    ui.txtTrakaRacunaFile->setText(rsOptions_[&Settings::TrakaRacunaFile].TextOrEmpty());
    ShowFiscalMode(rsOptions_[&Settings::FiskalniRacunDA].TextOrEmpty());
    ui.txtFiskalniFile->setText(rsOptions_[&Settings::FiskalniFile].TextOrEmpty());
    ui.chkNoviRacunAutomatski->setChecked(rsOptions_.IsYes(&Settings::NoviRacunAutomatski));
    ui.chkDisplejKupca->setChecked(rsOptions_.IsYes(&Settings::DisplejKupca));
}

// Mode 2 is set from outside only; a box that shows it keeps it until it is clicked.
void frmOptions::ShowFiscalMode(const QString& mode) {
    if (mode == u"2")
        ui.chkFiskalniRacunDA->setCheckState(Qt::PartiallyChecked);
    else
        ui.chkFiskalniRacunDA->setChecked(mode == u"1");
}

void frmOptions::ShowInvoice() {
    ui.txtNazivFirme->setText(TheSettings.NazivFirme);
    ui.txtAdresa->setText(TheSettings.Adresa);
    ui.txtJIB->setText(TheSettings.JIB);
    ui.txtTel->setText(TheSettings.Tel);
    ui.txtMjestoProdaje->setText(TheSettings.MjestoProdaje);
    ui.chkPrintKasir->setChecked(ReadsAsTrue(rsOptions_[&Settings::PrintKasir].TextOrEmpty()));
    ui.txtFooter->setText(rsOptions_[&Settings::Footer].TextOrEmpty());
}

void frmOptions::ShowDetails() {
    tipRacuna_.Load(rsOptions_);
    rekapPoreza_.Load(rsOptions_);
}

void frmOptions::ShowNetwork() {
    ui.txtServerName->setText(rsOptions_[&Settings::ServerName].TextOrEmpty());
    ui.txtKasa->setText(rsOptions_[&Settings::Kasa].TextOrEmpty());
}

void frmOptions::cmdPodesiWinPrinter_Click() {
    frmWinPrinter().ShowModal();
}

void frmOptions::chkShowAmount_Click() {
    TheSettings.StanjeKaseVidljivo = CheckText(*ui.chkShowAmount);
    mdiORVA::Window().ShowRunningTotal(ui.chkShowAmount->isChecked());
}

void frmOptions::chkAskPassword_Click() {
    TheSettings.ChangeUser = ui.chkAskPassword->isChecked() ? u"2"_s : u"1"_s;
}

void frmOptions::chkFiskalniRacunDA_Click() {
    ui.chkFiskalniRacunDA->setTristate(false);
}

void frmOptions::cmdUradi_Click() {
    const QString number = ui.txtRacun->text();
    if (!values::IsNumeric(number)) return forms::Inform(tr("Invoice No must be numeric."), Caption());
    try {
        TakeNumber(number);
    } catch (const values::Error& error) {
        // An invoice is in progress: a number that the counter cannot hold is no reason to end the program.
        if (error.Number() != values::Overflow) throw;
        return forms::Inform(forms::ErrorText(error), Caption());
    }
    forms::Inform(tr("Invoice No changed."), Caption());
}

// The sales screen goes on from the number; nothing is stored here.
void frmOptions::TakeNumber(const QString& number) {
    forms::Form* sales = mdiORVA::Window().ActiveChild();
    auto* shown = sales ? sales->findChild<QLineEdit*>(u"txtORNumber"_s) : nullptr;
    if (!shown || sales->metaObject()->indexOfProperty("RacunOrNo") < 0)
        throw values::Error(values::NotSupported, tr("The main window does not show the sales screen."));
    const qint32 last = values::CInt32(values::CDouble(number) - 1);
    shown->setText(number);
    sales->setProperty("RacunOrNo", last);
}
