#include "receipts/FiscalEntry.h"

#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "receipts/FiscalFile.h"
#include "values/Numbers.h"

FiscalEntry::FiscalEntry(const Words& words) : notNumeric_(words.notNumeric), confirmation_(words.confirmation) {
    setObjectName(words.name);
    ui.setupUi(this);
    setWindowTitle(words.title);
    ui.Frame1->setTitle(words.frame);
    ui.Label1->setText(words.label);
    ui.lblNote->setText(words.note);
    ui.cmdClose->setToolTip(words.toolTip);
    HighlightOnFocus({ui.txtPercent});
    NumericKeys({ui.txtPercent});
    On(ui.cmdClose, &FiscalEntry::cmdClose_Click);
}

// In spite of its name the one button that does the work.
void FiscalEntry::cmdClose_Click() {
    if (!values::IsNumeric(ui.txtPercent->text())) {
        forms::Inform(notNumeric_, Caption());
        forms::GoTo(ui.txtPercent);
        return;
    }
    AppendFiscalRecords({Record(ui.txtPercent->text())});
    forms::Inform(confirmation_, Caption());
    Unload();
}
