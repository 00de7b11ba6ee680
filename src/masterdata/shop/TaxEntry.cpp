#include "masterdata/shop/TaxEntry.h"

#include "core/dbModule.h"
#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "values/Format.h"
#include "values/Numbers.h"

TaxEntry::TaxEntry(const Words& words) : duplicate_(words.duplicate) {
    setObjectName(words.name);
    ui.setupUi(this);
    setWindowTitle(words.title);
    HighlightOnFocus({ui.txtTaxID, ui.txtName, ui.txtPercent});
    NumericKeys({ui.txtPercent});
    SaveHelpAndClose(ui.cmdAdd, ui.cmdHelp, ui.cmdClose);
    FunctionKeys({{Qt::Key_Escape, Guarded(&TaxEntry::ClearTaxFields)}});
    On(ui.cmdAdd, &TaxEntry::cmdAdd_Click);
}

void TaxEntry::ClearTaxFields() {
    for (QLineEdit* box : {ui.txtTaxID, ui.txtName, ui.txtPercent}) box->clear();
}

void TaxEntry::cmdAdd_Click() {
    if (!AllFilled({ui.txtTaxID, ui.txtPercent, ui.txtName})) return;
    if (!values::IsNumeric(ui.txtPercent->text())) {
        forms::Inform(tr("Tax rate must be numeric."), Caption());
        forms::GoTo(ui.txtPercent);
        return;
    }
    if (Trapped([this] { Save(); }, duplicate_, ui.txtTaxID)) Unload();
}

void TaxEntry::ShowTax() {
    ui.txtTaxID->setText(rsTax_[u"TaxID"].TextOrEmpty());
    ui.txtName->setText(rsTax_[u"Name"].TextOrEmpty());
    ui.txtPercent->setText(values::Format(rsTax_[u"Percent"].Get(), u"0.00"));
}

void TaxEntry::StoreTaxFields() {
    rsTax_[u"TaxID"] = ui.txtTaxID->text();
    rsTax_[u"Name"] = ProperCase(ui.txtName->text());
    rsTax_[u"Percent"] = ui.txtPercent->text();
}
