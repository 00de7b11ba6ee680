// The lines of the invoice: adding and merging, deleting and taking back, and the totals that follow from their texts.

#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "receipts/InvoiceLists.h"
#include "sales/frmORVAtouch.h"
#include "values/Format.h"
#include "values/LineAmount.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::CDouble;
using values::CMoney;
using values::Format;
using values::Money;

using enum InvoiceText::Item::Column;

void frmORVAtouch::cmdAddItem_Click() {
    const int row = boxes_.RowIn(*ui.lv1);
    if (row < 0)
        AddLine();
    else
        MergeInto(row);
}

void frmORVAtouch::AddLine() {
    LineAmount_ = values::NewLineAmount(CMoney(ui.txtUnitPrice->text()), CMoney(ui.txtQuantity->text()));
    // Read before the line stands, so that a product without figures leaves no line that nobody can post.
    const Money percent = CMoney(ui.txtTaxPercent->text());
    const Money tax = CMoney(ui.txtTaxAmount->text());
    const int row = ui.lv1->Add(CellsOf({.code = ui.txtProdCode->text(),
                                         .description = ui.txtDescription->text(),
                                         .unitPrice = Format(ui.txtUnitPrice->text(), u"0.00"),
                                         .quantity = ui.txtQuantity->text(),
                                         .amount = Format(LineAmount_, u"0.00"),
                                         .taxPercent = Format(percent, u"0.00"),
                                         .taxAmount = Format(tax, u"0.00"),
                                         .unit = ui.txtUnit->text(),
                                         .taxID = ui.txtTaxID->text(),
                                         .productID = ui.txtID->text()}));
    ui.lv1->BringIntoView(row);
    ui.txtPosDisplay->setText(ui.lv1->Text(row, Quantity) + u" x "_s + ui.txtDescription->text() + u"   "_s +
                              ui.lv1->Text(row, UnitPrice) + u" = "_s + ui.lv1->Text(row, Amount));
    display_->Show(u"stripAdded"_s);
    boxes_.StartAnew();
    RecomputeInvoice();
}

// The price is the one now in the field, and the arithmetic is that of doubles: a merged amount is computed otherwise
// than a new line's, and the price column keeps what it shows.
void frmORVAtouch::MergeInto(int row) {
    ui.lv1->Select(row);
    // Read before the line changes, as for a new one: a part of it would stand beside the totals of the whole.
    const auto merged = values::MergeLines(CMoney(ui.lv1->Text(row, Quantity)), CMoney(ui.txtQuantity->text()),
                                           CDouble(ui.txtUnitPrice->text()), CDouble(ui.txtTaxPercent->text()));
    LineAmount_ = merged.amount;
    ui.lv1->SetText(row, Quantity, Format(merged.quantity, u""));
    ui.lv1->SetText(row, Amount, Format(merged.amount, u"0.00"));
    ui.lv1->SetText(row, TaxAmount, Format(merged.tax, u"0.00"));
    ui.txtPosDisplay->setText(ui.lv1->Text(row, Quantity) + u" x "_s + ui.txtDescription->text() + u"   "_s +
                              ui.txtUnitPrice->text() + u" = "_s + ui.lv1->Text(row, Amount));
    display_->Show(u"stripAdded"_s);
    boxes_.StartAnew();
    RecomputeInvoice();
}

// The totals are sums of the rounded texts of the lines; nothing is rounded on the invoice as a whole.
void frmORVAtouch::RecomputeInvoice() {
    TotalAmountValue_ = 0;
    TaxTotalValue_ = 0;
    for (int row = 0; row < ui.lv1->Count(); ++row) {
        TotalAmountValue_ = values::AddToSum(TotalAmountValue_, CMoney(ui.lv1->Text(row, Amount)));
        TaxTotalValue_ = values::AddToSum(TaxTotalValue_, CMoney(ui.lv1->Text(row, TaxAmount)));
    }
    RebuildTaxRecap(*ui.lv1, *ui.lvPorez);
    ui.txtTotalAmount->setText(Format(TotalAmountValue_, u"0.00"));
    ui.txtTaxTotal->setText(Format(TaxTotalValue_, u"0.00"));
    ShowCount();
}

// What is weighed or measured is one piece. The taxes of an invoice that is gone stay until the next one has its own,
// but pale.
void frmORVAtouch::ShowCount() {
    const int lines = ui.lv1->Count();
    double pieces = 0;
    for (int row = 0; row < lines; ++row) {
        const bool isCounted = ui.lv1->Text(row, Unit) == PiecesUnit;
        pieces += isCounted ? CDouble(ui.lv1->Text(row, Quantity)) : 1;
    }
    ui.lblCount->setText(lines == 0 ? QString()
                                    : tr("Lines: %1   Pieces: %2").arg(QString::number(lines), Format(pieces, u"")));
    forms::SetRole(ui.lvPorez, lines == 0 ? u"stale"_s : QString());
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
    ShowAnew(ui.lv1->Text(row, Code));
    ui.txtTaxPercent->setText(ui.lv1->Text(row, TaxPercent));
    SetQuantity(ui.lv1->Text(row, Quantity));
    ui.lv1->Remove(row);
    RecomputeInvoice();
    ui.txtPosDisplay->clear();
    ui.txtQuantity->setFocus();
}

InvoiceText frmORVAtouch::TakeInvoiceText() const {
    return {.orNo = ui.txtORNumber->text(),
            .customer = ui.txtKupac->text(),
            .ident = ui.txtIB->text(),
            .cashier = ui.txtUserFullName->text(),
            .total = ui.txtTotalAmount->text(),
            .taxTotal = ui.txtTaxTotal->text(),
            .items = ItemsOf(*ui.lv1),
            .taxes = TaxesOf(*ui.lvPorez)};
}
