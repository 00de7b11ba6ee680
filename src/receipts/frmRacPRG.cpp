#include "receipts/frmRacPRG.h"

#include <QScopeGuard>

#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "output/Folder.h"
#include "receipts/InvoiceLists.h"
#include "receipts/InvoiceOutput.h"
#include "receipts/ReviewReceipt.h"
#include "receipts/StoredInvoice.h"
#include "receipts/TextFiles.h"
#include "receipts/frmRacunPregled.h"
#include "support/Help.h"

using namespace Qt::StringLiterals;

namespace {

void ShowPreview() {
    frmRacunPregled::Preview(PreviewFile, frmRacPRG::tr("Review Invoice"));
}

}  // namespace

frmRacPRG::frmRacPRG() {
    ui.setupUi(this);
    SetLineColumns(*ui.lv1, LinesOf::Review);
    SetRecapColumns(*ui.lvPorez);
    ShrinkFigures({ui.txtTotalAmount});
    // F6 has no action behind it, and neither has its button.
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose},
                  {Qt::Key_F1, ui.cmdHelp},
                  {Qt::Key_F4, ui.cmdSacuvaj},
                  {Qt::Key_F5, ui.cmdPrint},
                  {Qt::Key_F7, ui.Command1},
                  {Qt::Key_F12, ui.cmdClose}});
    On(ui.cmdPrint, &frmRacPRG::cmdPrint_Click);
    On(ui.cmdSacuvaj, &frmRacPRG::cmdSacuvaj_Click);
    On(ui.Command1, &frmRacPRG::Command1_Click);
    On(ui.cmdFirst, &frmRacPRG::cmdFirst_Click);
    On(ui.cmdPrevious, &frmRacPRG::cmdPrevious_Click);
    On(ui.cmdNext, &frmRacPRG::cmdNext_Click);
    On(ui.cmdLast, &frmRacPRG::cmdLast_Click);
    On(ui.cmdHelp, &frmRacPRG::cmdHelp_Click);
    On(ui.cmdClose, &frmRacPRG::cmdClose_Click);
}

void frmRacPRG::Form_Load() {
    DeleteTextFile(output::InProgramFolder(PreviewFile));
    rsInvoices_ = MainStore().OpenRecordset(StoredInvoicesQuery(strSQLwhere));
    if (rsInvoices_.RecordCount() == 0) return forms::Inform(tr("Currently there is no single invoice"), Caption());
    PreviewAllInvoices();
    cmdFirst_Click();
}

// Thousands of invoices go by that nobody sees: the receipts are written from the rows, and only the last is shown.
void frmRacPRG::PreviewAllInvoices() {
    // Without an invoice the move to the first one fails, and ends the program as a failed printing does.
    PrintOrEndProgram([this] {
        rsInvoices_.MoveFirst();
        for (; !rsInvoices_.AtEOF(); rsInvoices_.MoveNext()) AppendInvoiceToPreview(ReadInvoice(rsInvoices_));
        ClosePreview();
        rsInvoices_.MoveLast();
        ShowInvoice();
    });
    ShowPreview();
}

void frmRacPRG::ShowInvoice() {
    ShowInvoiceHeader();
    ShowInvoiceLines();
}

void frmRacPRG::ShowInvoiceHeader() {
    const InvoiceText head = ReadInvoiceHead(rsInvoices_);
    ui.txtInvoiceNumber->setText(rsInvoices_[u"InvoiceID"].TextOrEmpty());
    ui.txtORNumber->setText(head.orNo);
    ui.txtTotalAmount->setText(head.total);
    ui.txtTaxTotal->setText(head.taxTotal);
    ui.txtDatum->setText(rsInvoices_[u"DateSold"].TextOrEmpty());
    ui.txtVrijeme->setText(rsInvoices_[u"TimeSold"].TextOrEmpty());
    ui.txtCashier->setText(head.cashier);
    ui.txtCashier->setCursorPosition(0);
    ui.txtCashier->setToolTip(head.cashier);
}

void frmRacPRG::ShowInvoiceLines() {
    ui.lv1->BeginFill();
    const auto end = qScopeGuard([this] { ui.lv1->EndFill(); });
    ui.lv1->Clear();
    for (const auto& line : ReadInvoiceLines(rsInvoices_)) ui.lv1->Add(CellsOf(line));
    RebuildTaxRecap(*ui.lv1, *ui.lvPorez);
}

InvoiceText frmRacPRG::TakeInvoiceText() const {
    return {.orNo = ui.txtORNumber->text(),
            .customer = {},
            .ident = {},
            .cashier = ui.txtCashier->text(),
            .total = ui.txtTotalAmount->text(),
            .taxTotal = ui.txtTaxTotal->text(),
            .items = ItemsOf(*ui.lv1),
            .taxes = TaxesOf(*ui.lvPorez)};
}

void frmRacPRG::cmdPrint_Click() {
    ReprintInvoice(TakeInvoiceText());
}

void frmRacPRG::cmdSacuvaj_Click() {
    ShowPreview();
}

void frmRacPRG::Command1_Click() {
    PreviewAllInvoices();
}

void frmRacPRG::cmdFirst_Click() {
    rsInvoices_.MoveFirst();
    ShowInvoice();
}

void frmRacPRG::cmdPrevious_Click() {
    if (rsInvoices_.AtBOF()) return;
    rsInvoices_.MovePrevious();
    if (rsInvoices_.AtBOF()) rsInvoices_.MoveFirst();
    ShowInvoice();
}

void frmRacPRG::cmdNext_Click() {
    if (rsInvoices_.AtEOF()) return;
    rsInvoices_.MoveNext();
    if (rsInvoices_.AtEOF()) rsInvoices_.MoveLast();
    ShowInvoice();
}

void frmRacPRG::cmdLast_Click() {
    rsInvoices_.MoveLast();
    ShowInvoice();
}

void frmRacPRG::cmdHelp_Click() {
    ShowHelp();
}

void frmRacPRG::cmdClose_Click() {
    Unload();
}
