#include "config/frmMreza.h"

#include "config/RegisterNumber.h"
#include "core/dbModule.h"
#include "forms/Controls.h"

using namespace Qt::StringLiterals;

namespace {

const auto OptionsQuery = u"SELECT * FROM Options"_s;

}  // namespace

frmMreza::frmMreza() {
    ui.setupUi(this);
    StoreErrorsEndProgram();
    HelpAndClose(ui.cmdHelp, ui.cmdCancel, {Qt::Key_Escape, Qt::Key_F12}, u"\\Podesavanje.rtf"_s);
    FunctionKeys({{Qt::Key_F5, ui.cmdOK}});
    EnterMovesOn();
    HighlightOnFocus({ui.txtServerName, ui.txtKasa});
    On(ui.cmdOK, &frmMreza::cmdOK_Click);
    TieToolBar(ui.Tlbr1, {{ui.save, ui.cmdOK}, {ui.help, ui.cmdHelp}, {ui.close, ui.cmdCancel}});
    SpreadToolBar(ui.Tlbr1);
}

void frmMreza::Form_Load() {
    rsOptions_ = OptionsStore().OpenRecordset(OptionsQuery);
    ui.txtServerName->setText(rsOptions_[u"ServerName"].TextOrEmpty());
    ui.txtKasa->setText(rsOptions_[u"Kasa"].TextOrEmpty());
}

void frmMreza::cmdOK_Click() {
    const auto kasa = RegisterNumber(ui.txtKasa->text(), Caption());
    if (!kasa) return forms::GoTo(ui.txtKasa);
    rsOptions_.Edit();
    rsOptions_[u"ServerName"] = ui.txtServerName->text();
    rsOptions_[u"Kasa"] = *kasa;
    rsOptions_.Update();
    Unload();
}
