#include "manager/overview/InvoicesForm.h"

#include <QItemSelectionModel>

#include "core/dbModule.h"
#include "manager/Texts.h"
#include "receipts/ReviewReceipt.h"
#include "receipts/StoredInvoice.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto InvoicesQuery =
    u"SELECT InvoiceID, DateSold, TimeSold, CashAmount, CashierName FROM Invoices WHERE DateSold BETWEEN #%1# AND #%2#"_s;
const auto OneInvoice = u"WHERE InvoiceID = %1"_s;

QString Literal(QDate day) {
    return day.toString(u"MM-dd-yyyy");
}

}  // namespace

InvoicesForm::InvoicesForm(InvoicesBehind behind) : behind_(std::move(behind)) {
    ui.setupUi(this);
    ui.lstInvoices->SetColumns(
        {{tr("Number"), Qt::AlignLeft, 90}, {tr("Time"), Qt::AlignLeft, 150}, {tr("Total"), Qt::AlignRight, -1}});
    ui.lstInvoices->SetEmptyText(tr("No invoices stand behind this."));
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose}});
    connect(ui.lstInvoices->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            Guarded(&InvoicesForm::lstInvoices_Chosen));
    On(ui.cmdClose, &InvoicesForm::cmdClose_Click);
}

void InvoicesForm::Form_Load() {
    ui.lblWhat->setText(behind_.what);
    auto invoices = MainStore().OpenSnapshot(InvoicesQuery.arg(Literal(behind_.from), Literal(behind_.to)));
    ui.lstInvoices->BeginFill();
    for (auto& invoice : invoices) {
        const QDate day = invoice[1].Get().ToDate();
        const QTime time = invoice[2].IsNull() ? QTime(0, 0) : invoice[2].Get().ToTime();
        if (behind_.weekday > 0 && day.dayOfWeek() != behind_.weekday) continue;
        if (behind_.hour >= 0 && time.hour() != behind_.hour) continue;
        if (!behind_.cashier.isNull() && invoice[4].TextOrEmpty() != behind_.cashier) continue;
        const QString number = invoice[0].TextOrEmpty();
        if (behind_.byNumber && !behind_.numbers.contains(number)) continue;
        ui.lstInvoices->Add({number, MomentText(QDateTime(day, time)),
                             invoice[3].IsNull() ? QString() : AmountText(invoice[3].Money())});
    }
    ui.lstInvoices->EndFill();
    if (ui.lstInvoices->Count() > 0) ui.lstInvoices->Select(0);
}

void InvoicesForm::lstInvoices_Chosen() {
    const int row = ui.lstInvoices->Selected();
    if (row < 0) return ui.txtReceipt->Clear();
    auto invoices = MainStore().OpenRecordset(StoredInvoicesQuery(OneInvoice.arg(Quoted(ui.lstInvoices->Text(row)))));
    if (invoices.AtEOF()) return ui.txtReceipt->Clear();
    ui.txtReceipt->ShowText(ReviewText(ReadInvoice(invoices)));
}

void InvoicesForm::cmdClose_Click() {
    Unload();
}

}  // namespace manager
