#include "manager/drawer/NotesAndCoins.h"

#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "upkeep/ManagerStore.h"

namespace manager {

NotesAndCoins::NotesAndCoins(const QString& currency, const QList<values::Money>& worths) {
    ui.setupUi(this);
    ui.lblWhich->setText(tr("What the notes and coins of %1 are worth, with a blank between two:").arg(currency));
    ui.txtWorths->setText(upkeep::DenominationsText(worths));
    ControlKeys(ui.txtWorths, {{Qt::Key_Return, ui.cmdSave}, {Qt::Key_Enter, ui.cmdSave}});
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose}});
    On(ui.cmdSave, &NotesAndCoins::cmdSave_Click);
    On(ui.cmdClose, &NotesAndCoins::cmdClose_Click);
}

void NotesAndCoins::cmdSave_Click() {
    try {
        chosen_ = upkeep::ReadDenominations(ui.txtWorths->text());
    } catch (const values::Error& error) {
        forms::Inform(error.Description(), Caption());
        return forms::GoTo(ui.txtWorths);
    }
    Unload();
}

void NotesAndCoins::cmdClose_Click() {
    Unload();
}

}  // namespace manager
