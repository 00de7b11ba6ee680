// The lines of the invoice: adding and merging, deleting and taking back, and the totals that follow from their texts.

#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "sales/frmORVAtouch.h"
#include "store/CaseFold.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::CDouble;
using values::CMoney;
using values::Format;
using values::Money;

namespace {

enum LineColumn { Code, Description, UnitPrice, Quantity, Amount, TaxPercent, TaxAmount, Unit, TaxID, ProductID };
enum TaxColumn { RecapTaxID, RecapNothing, RecapPercent, RecapAmount, RecapTax };

}  // namespace

void frmORVAtouch::cmdAddItem_Click() {
    const int row = FindLine();
    if (row < 0)
        AddLine();
    else
        MergeInto(row);
}

// One product has one line, however its code was typed: the store does not tell cases apart either.
int frmORVAtouch::FindLine() const {
    for (int row = 0; row < ui.lv1->Count(); ++row)
        if (store::SameText(ui.lv1->Text(row, Code), ui.txtProdCode->text())) return row;
    return -1;
}

void frmORVAtouch::AddLine() {
    LineAmount_ = (CMoney(ui.txtUnitPrice->text()) * CMoney(ui.txtQuantity->text())).ToDouble();
    // Read before the line stands, so that a product without figures leaves no line that nobody can post.
    const Money percent = CMoney(ui.txtTaxPercent->text());
    const Money tax = CMoney(ui.txtTaxAmount->text());
    const int row = ui.lv1->Add({ui.txtProdCode->text(), ui.txtDescription->text(),
                                 Format(ui.txtUnitPrice->text(), u"0.00"), ui.txtQuantity->text(),
                                 Format(LineAmount_, u"0.00"), Format(percent, u"0.00"), Format(tax, u"0.00"),
                                 ui.txtUnit->text(), ui.txtTaxID->text(), ui.txtID->text()});
    ui.lv1->BringIntoView(row);
    ui.txtPosDisplay->setText(ui.lv1->Text(row, Quantity) + u" x "_s + ui.txtDescription->text() + u"   "_s +
                              ui.lv1->Text(row, UnitPrice) + u" = "_s + ui.lv1->Text(row, Amount));
    NextEntry();
    RecomputeInvoice();
}

// The price is the one now in the field, and the arithmetic is that of doubles: a merged amount is computed otherwise
// than a new line's, and the price column keeps what it shows.
void frmORVAtouch::MergeInto(int row) {
    ui.lv1->Select(row);
    LineAmount_ = (CMoney(ui.txtQuantity->text()) + CMoney(ui.lv1->Text(row, Quantity))).ToDouble();
    ui.lv1->SetText(row, Quantity, Format(LineAmount_, u""));
    LineAmount_ = CDouble(ui.txtUnitPrice->text()) * LineAmount_;
    ui.lv1->SetText(row, Amount, Format(LineAmount_, u"0.00"));
    const double tax = LineAmount_ - LineAmount_ / (1 + CDouble(ui.txtTaxPercent->text()) / 100);
    ui.lv1->SetText(row, TaxAmount, Format(tax, u"0.00"));
    ui.txtPosDisplay->setText(ui.lv1->Text(row, Quantity) + u" x "_s + ui.txtDescription->text() + u"   "_s +
                              ui.txtUnitPrice->text() + u" = "_s + ui.lv1->Text(row, Amount));
    NextEntry();
    RecomputeInvoice();
}

void frmORVAtouch::NextEntry() {
    ui.txtProdCode->clear();
    ui.txtTaxPercent->clear();
    ui.txtQuantity->clear();
    ui.txtProdCode->setFocus();
}

// The totals are sums of the rounded texts of the lines; nothing is rounded on the invoice as a whole.
void frmORVAtouch::RecomputeInvoice() {
    TotalAmountValue_ = 0;
    TaxTotalValue_ = 0;
    ui.lvPorez->Clear();
    for (int row = 0; row < ui.lv1->Count(); ++row) {
        TotalAmountValue_ = (Money::FromDouble(TotalAmountValue_) + CMoney(ui.lv1->Text(row, Amount))).ToDouble();
        TaxTotalValue_ = (Money::FromDouble(TaxTotalValue_) + CMoney(ui.lv1->Text(row, TaxAmount))).ToDouble();
        AddToTaxRecap(row);
    }
    ui.txtTotalAmount->setText(Format(TotalAmountValue_, u"0.00"));
    ui.txtTaxTotal->setText(Format(TaxTotalValue_, u"0.00"));
}

void frmORVAtouch::AddToTaxRecap(int index) {
    const QString amount = ui.lv1->Text(index, Amount);
    const QString tax = ui.lv1->Text(index, TaxAmount);
    const int row = ui.lvPorez->Find(ui.lv1->Text(index, TaxID));
    if (row < 0) {
        ui.lvPorez->Add({ui.lv1->Text(index, TaxID), {}, Format(ui.lv1->Text(index, TaxPercent), u"0.00"),
                         Format(amount, u"0.00"), Format(tax, u"0.00")});
        return;
    }
    ui.lvPorez->Select(row);
    const auto add = [&](TaxColumn column, const QString& text) {
        const double sum = (CMoney(ui.lvPorez->Text(row, column)) + CMoney(text)).ToDouble();
        ui.lvPorez->SetText(row, column, Format(sum, u"0.00"));
    };
    add(RecapAmount, amount);
    add(RecapTax, tax);
}

void frmORVAtouch::DeleteLine() {
    const int row = ui.lv1->Selected();
    if (row < 0) return;
    ui.lv1->Remove(row);
    RecomputeInvoice();
    ui.txtPosDisplay->clear();
}

// The line comes off the invoice and back into the entry fields, with the product as it is now.
void frmORVAtouch::ChangeLineQuantity() {
    const int row = ui.lv1->Selected();
    if (row < 0) return;
    ui.txtProdCode->setText(ui.lv1->Text(row, Code));
    ui.txtTaxPercent->setText(ui.lv1->Text(row, TaxPercent));
    ui.txtQuantity->setText(ui.lv1->Text(row, Quantity));
    ui.lv1->Remove(row);
    RecomputeInvoice();
    ui.txtPosDisplay->clear();
    ui.txtQuantity->setFocus();
}

InvoiceText frmORVAtouch::TakeInvoiceText() const {
    InvoiceText invoice{.orNo = ui.txtORNumber->text(),
                        .customer = ui.txtKupac->text(),
                        .ident = ui.txtIB->text(),
                        .cashier = ui.txtUserFullName->text(),
                        .total = ui.txtTotalAmount->text(),
                        .taxTotal = ui.txtTaxTotal->text(),
                        .items = {},
                        .taxes = {}};
    const auto line = [&](int row, LineColumn column) { return ui.lv1->Text(row, column); };
    for (int row = 0; row < ui.lv1->Count(); ++row)
        invoice.items << InvoiceText::Item{line(row, Code),       line(row, Description), line(row, UnitPrice),
                                           line(row, Quantity),   line(row, Amount),      line(row, TaxPercent),
                                           line(row, TaxAmount),  line(row, Unit),        line(row, TaxID),
                                           line(row, ProductID)};
    for (int row = 0; row < ui.lvPorez->Count(); ++row)
        invoice.taxes << InvoiceText::Tax{ui.lvPorez->Text(row, RecapTaxID), ui.lvPorez->Text(row, RecapPercent),
                                          ui.lvPorez->Text(row, RecapAmount), ui.lvPorez->Text(row, RecapTax)};
    return invoice;
}
