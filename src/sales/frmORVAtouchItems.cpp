// Item entry of the sales screen: from a code to a product, its quantity, and what the line would come to.

#include <QElapsedTimer>

#include "core/Session.h"
#include "core/Settings.h"
#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "forms/LongWork.h"
#include "forms/Sound.h"
#include "masterdata/products/frmArtikli.h"
#include "sales/frmORVAtouch.h"
#include "values/LineAmount.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::CDouble;
using values::CMoney;

namespace {

QString UnknownProduct() {
    return frmORVAtouch::tr("Product with this ID-barcode does not exist.");
}

// Printed on a card at the till: posts the invoice without touching the keyboard.
const auto PostingBarcode = u"9999999999994"_s;

}  // namespace

// Heard and seen without a look at the box, also after it has been answered.
void frmORVAtouch::Refuse(const QString& text, const QString& title, forms::Icon icon) {
    forms::Beep();
    display_->Hold(u"stripDanger"_s);
    forms::Tell(text, icon, title);
    display_->Show(u"stripDanger"_s);
}

// Amount and tax follow from the price and the rate that stand there now, also when the quantity stays what it was.
void frmORVAtouch::SetQuantity(const QString& text) {
    if (ui.txtQuantity->text() == text) return txtQuantity_Change();
    ui.txtQuantity->setText(text);
}

// The product as it is now, also when its code stands in the box already, which would be no change.
void frmORVAtouch::ShowAnew(const QString& code) {
    ui.txtProdCode->clear();
    ui.txtProdCode->setText(code);
}

void frmORVAtouch::ToggleAddButton() {
    boxes_.ToggleAddButton();
}

// A query text that a typed character breaks is passed over: the fields keep what they had. That the server is gone is
// told once the code is whole, unless its rest was typed into a wait's notice, and lost.
void frmORVAtouch::txtProdCode_Change() {
    ToggleAddButton();
    QElapsedTimer sinceTyped;
    sinceTyped.start();
    try {
        if (boxes_.LookUp()) SetQuantity(u"1"_s);
    } catch (const store::ServerLost&) {
        if (sinceTyped.elapsed() < forms::LongWork::NoticeAfterWait) return;
        forms::SelectAll(ui.txtProdCode);
        throw;
    } catch (const values::Error&) {
    }
}

void frmORVAtouch::txtProdCode_LostFocus() {
    CheckProductFound();
}

void frmORVAtouch::CheckProductFound() {
    if (ui.txtProdCode->text().isEmpty() || !ui.txtDescription->text().isEmpty()) return;
    if (boxes_.IsUnanswered() && boxes_.LookUp()) return SetQuantity(u"1"_s);
    Refuse(UnknownProduct(), mdiORVA::Window().Caption());
    ui.txtProdCode->clear();
}

void frmORVAtouch::txtProdCode_Enter() {
    if (TheSettings.SkenerPrimarno != u"1") return forms::SendTab(ui.txtProdCode);
    const QString code = ui.txtProdCode->text();
    if (code == PostingBarcode) {
        ui.txtProdCode->clear();
        return cmdNew_Click();
    }
    if (code.isEmpty()) return;
    auto product = LineBoxes::Find(code);
    if (product.AtEOF()) {
        Refuse(UnknownProduct(), tr("Product with this ID-barcode does not exist"));
        ui.txtProdCode->setFocus();
        forms::SelectAll(ui.txtProdCode);
        return;
    }
    boxes_.Show(product);
    SetQuantity(u"1"_s);
    if (ui.txtUnit->text() == PiecesUnit) return cmdAddItem_Click();
    ui.txtQuantity->setCursorPosition(0);
    ui.txtQuantity->setFocus();
}

void frmORVAtouch::txtDescription_Change() {
    ToggleAddButton();
}

void frmORVAtouch::txtQuantity_Enter() {
    ToggleAddButton();
    if (ui.cmdAddItem->isEnabled()) return cmdAddItem_Click();
    forms::SendTab(ui.txtQuantity);
}

void frmORVAtouch::txtQuantity_Change() {
    ToggleAddButton();
    if (boxes_.IsComplete() && ui.txtQuantity->text() == u"-") return;  // a negative number is being typed
    if (!boxes_.HasQuantity()) return;
    // An error in one of these steps does not keep the next from running.
    for (auto step : {&frmORVAtouch::LimitQuantity, &frmORVAtouch::ShowAmount, &frmORVAtouch::ShowTax}) {
        try {
            (this->*step)();
        } catch (const values::Error& error) {
            if (error.Number() != values::Overflow) continue;
            Refuse(tr("Illogical quantity. "), tr("CHANGE QUANTITY"));
            ui.txtQuantity->setText(u"0"_s);
            ui.txtQuantity->clear();
            ui.txtQuantity->setCursorPosition(0);
            ui.txtQuantity->setFocus();
        }
    }
}

void frmORVAtouch::LimitQuantity() {
    const QString text = ui.txtQuantity->text();
    const double limited = values::CutQuantity(CMoney(text));
    if (limited == CDouble(text)) return;
    ui.txtQuantity->setText(values::NumberText(limited));
    forms::CaretToEnd(ui.txtQuantity);
}

void frmORVAtouch::ShowAmount() {
    boxes_.ShowAmount();
}

void frmORVAtouch::ShowTax() {
    boxes_.ShowTax();
}

void frmORVAtouch::cmdF2izaberi_Click() {
    ui.txtProdCode->clear();
    CallerForm = this;
    frmArtikli::Choose();
}
