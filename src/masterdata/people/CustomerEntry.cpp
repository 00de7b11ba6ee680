#include "masterdata/people/CustomerEntry.h"

#include "forms/Controls.h"
#include "forms/OneLine.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

CustomerEntry::CustomerEntry(const Words& words) {
    setObjectName(words.name);
    ui.setupUi(this);
    setWindowTitle(words.title);
    ui.lblIdent->setText(words.ident);
    for (const auto& [field, box] : Fields()) HighlightOnFocus({box});
    NumericKeys({ui.txtRabatMarza});
    Keypad({ui.txtProdCode, ui.txtIB, ui.txtTelefon, ui.txtFax, ui.txtZiroRacun}, forms::KeypadKeys::Code);
    OnLostFocus(ui.txtRabatMarza, &CustomerEntry::txtRabatMarza_LostFocus);
    SaveHelpAndClose(ui.cmdUpdate, ui.cmdHelp, ui.cmdClose, {Qt::Key_Escape, Qt::Key_F12});
    On(ui.cmdUpdate, &CustomerEntry::cmdUpdate_Click);
}

QList<std::pair<QString, QLineEdit*>> CustomerEntry::Fields() const {
    return {{u"Sifra"_s, ui.txtProdCode},  {u"Naziv"_s, ui.txtDescription},   {u"Adresa"_s, ui.txtAdresa},
            {u"JMBG"_s, ui.txtIB},         {u"Telefon"_s, ui.txtTelefon},     {u"Telefax"_s, ui.txtFax},
            {u"Vlasnik"_s, ui.txtVlasnik}, {u"ZiroRacun"_s, ui.txtZiroRacun}, {u"RabatMarza"_s, ui.txtRabatMarza}};
}

void CustomerEntry::ShowCustomer() {
    for (const auto& [field, box] : Fields()) forms::ShowWhole(box, rsCustomer_[field].TextOrEmpty());
}

void CustomerEntry::StoreCustomer() {
    for (const auto& [field, box] : Fields()) rsCustomer_[field] = box->text();
}

void CustomerEntry::txtRabatMarza_LostFocus() {
    ui.txtRabatMarza->setText(values::Format(ui.txtRabatMarza->text(), u"0.00"));
}

void CustomerEntry::cmdUpdate_Click() {
    if (!AllFilled({ui.txtProdCode, ui.txtDescription})) return forms::GoTo(ui.txtProdCode);
    const auto store = [this] {
        BeginRow();
        StoreCustomer();
        rsCustomer_.Update();
    };
    //: the customer's ID is taken
    if (!Trapped(store, tr("Change password!"), ui.txtProdCode)) return;
    RowStored();
    Unload();
}
