#include "config/frmMreza.h"

#include "config/RegisterNumber.h"
#include "forms/Controls.h"

using namespace Qt::StringLiterals;

frmMreza::frmMreza() {
    ui.setupUi(this);
    StoreErrorsEndProgram();
    HelpAndClose(ui.cmdHelp, ui.cmdCancel, {Qt::Key_Escape, Qt::Key_F12}, u"\\Podesavanje.rtf"_s);
    FunctionKeys({{Qt::Key_F5, ui.cmdOK}});
    EnterMovesOn();
    HighlightOnFocus({ui.txtServerName, ui.txtKasa});
    Keypad({ui.txtKasa});
    On(ui.cmdOK, &frmMreza::cmdOK_Click);
    TieToolBar(ui.Tlbr1, {{ui.save, ui.cmdOK}, {ui.help, ui.cmdHelp}, {ui.close, ui.cmdCancel}});
    SpreadToolBar(ui.Tlbr1);
}

void frmMreza::Form_Load() {
    rsOptions_ = OptionsRecord::OfThisRegister();
    ui.txtServerName->setText(rsOptions_[&Settings::ServerName].TextOrEmpty());
    ui.txtKasa->setText(rsOptions_[&Settings::Kasa].TextOrEmpty());
}

void frmMreza::cmdOK_Click() {
    const auto kasa = RegisterNumber(ui.txtKasa->text(), Caption());
    if (!kasa) return forms::GoTo(ui.txtKasa);
    rsOptions_.Edit();
    rsOptions_[&Settings::ServerName] = ui.txtServerName->text();
    rsOptions_[&Settings::Kasa] = *kasa;
    rsOptions_.Update();
    Unload();
}
