#pragma once

#include "config/OptionButtons.h"
#include "support/OfficeForm.h"
#include "ui_frmOptions.h"

// The settings of this register: its row of Options in four tabs. Some controls change the running setting as soon as
// they are clicked, others when they are saved, the rest only at the next start.
class frmOptions : public OfficeForm {
    Q_OBJECT

public:
    // The tab shown first, from 0.
    explicit frmOptions(int tab = 0);

protected:
    void Form_Load() override;
    bool Form_KeyDown(QKeyEvent& key) override;

private:
    void cmdPodesiWinPrinter_Click();
    void chkShowAmount_Click();
    void chkAskPassword_Click();
    void chkFiskalniRacunDA_Click();
    void cmdUradi_Click();
    void TakeNumber(const QString& number);

    void ShowProgram();
    void ShowFiscalMode(const QString& mode);
    void ShowInvoice();
    void ShowDetails();
    void ShowNetwork();

    // The save (frmOptionsSave.cpp).
    void cmdOK_Click();
    void StoreOptions(qint16 kasa);

    Ui::frmOptions ui;
    OptionButtons printerZaRacun_;
    OptionButtons emulacija_;
    OptionButtons printerZaIzvjestaj_;
    OptionButtons posMonitor_;
    OptionButtons tipRacuna_;
    OptionButtons rekapPoreza_;
    OptionsRecord rsOptions_;
};
