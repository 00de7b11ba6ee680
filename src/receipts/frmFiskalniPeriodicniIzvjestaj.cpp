#include "receipts/frmFiskalniPeriodicniIzvjestaj.h"

#include "forms/MsgBox.h"
#include "receipts/FiscalFile.h"
#include "receipts/FiscalRecords.h"
#include "values/Clock.h"

frmFiskalniPeriodicniIzvjestaj::frmFiskalniPeriodicniIzvjestaj() {
    ui.setupUi(this);
    FunctionKeys({{Qt::Key_Escape, Guarded(&frmFiskalniPeriodicniIzvjestaj::CloseForm)},
                  {Qt::Key_F12, Guarded(&frmFiskalniPeriodicniIzvjestaj::CloseForm)}});
    EnterMovesOn({ui.DTPicker1, ui.DTPicker2});
    On(ui.Command1, &frmFiskalniPeriodicniIzvjestaj::Command1_Click);
}

void frmFiskalniPeriodicniIzvjestaj::Form_Load() {
    ui.DTPicker1->setDate(values::Today().addDays(-7));
    ui.DTPicker2->setDate(values::Today());
}

void frmFiskalniPeriodicniIzvjestaj::Command1_Click() {
    AppendFiscalRecords({FiscalPeriodicRecord(ui.DTPicker1->date(), ui.DTPicker2->date())});
    forms::Inform(tr("Periodic report is done."), Caption());
}

void frmFiskalniPeriodicniIzvjestaj::CloseForm() {
    Unload();
}
