#include "manager/overview/InvoicesView.h"

#include <QFile>

#include "core/Settings.h"
#include "core/dbModule.h"
#include "manager/Texts.h"
#include "manager/overview/OverviewCharts.h"
#include "output/CodePage.h"
#include "output/Folder.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

constexpr qint64 LongestRibbon = 64 * 1024 * 1024;  // what is looked through while somebody waits

}  // namespace

InvoicesView::InvoicesView(const QString& what, std::vector<upkeep::ListedInvoice> invoices)
    : invoices_(std::move(invoices)) {
    ui.setupUi(this);
    ui.lblWhat->setText(what);
    ui.lstInvoices->SetColumns({{tr("Number"), Qt::AlignRight, 90},
                                {tr("Date"), Qt::AlignLeft, 120},
                                {tr("Time"), Qt::AlignLeft, 120},
                                {tr("Cashier"), Qt::AlignLeft, -1},
                                {tr("Total"), Qt::AlignRight, 110}});
    ui.lstInvoices->SetEmptyText(tr("There are no invoices behind this figure."));
    ListKeys(ui.lstInvoices, {{Qt::Key_Return, ui.cmdReceipt}, {Qt::Key_Enter, ui.cmdReceipt}});
    OnDoubleClick(ui.lstInvoices, &InvoicesView::cmdReceipt_Click);
    FunctionKeys({{Qt::Key_Escape, [this] { ui.stkParts->currentIndex() == 0 ? cmdClose_Click() : cmdBack_Click(); }}});
    On(ui.cmdReceipt, &InvoicesView::cmdReceipt_Click);
    On(ui.cmdBack, &InvoicesView::cmdBack_Click);
    On(ui.cmdClose, &InvoicesView::cmdClose_Click);
}

void InvoicesView::Form_Load() {
    values::Money sum;
    ui.lstInvoices->BeginFill();
    for (const auto& invoice : invoices_) {
        ui.lstInvoices->Add({invoice.number, values::DateText(invoice.day), values::TimeText(invoice.time),
                             invoice.cashier, AmountText(invoice.amounts.total)});
        sum += invoice.amounts.total;
    }
    ui.lstInvoices->EndFill();
    if (!invoices_.empty()) ui.lstInvoices->Select(0);
    ui.lblSum->setText(tr("Total %1").arg(AmountText(sum)));
    ui.cmdReceipt->setEnabled(!invoices_.empty());
    cmdBack_Click();
}

// The receipt's own text where the ribbon has it, else the one that the rows tell.
QString InvoicesView::ReceiptOf(const upkeep::ListedInvoice& invoice) {
    QFile ribbon(output::InProgramFolder(TheSettings.TrakaRacunaFile));
    if (!TheSettings.TrakaRacunaFile.isEmpty() && ribbon.open(QIODevice::ReadOnly)) {
        if (ribbon.size() > LongestRibbon) ribbon.seek(ribbon.size() - LongestRibbon);
        if (const QByteArray receipt = upkeep::FindReceipt(ribbon, invoice); !receipt.isEmpty())
            return output::FromCodePage(receipt);
    }
    return upkeep::InvoiceAsText(MainStore(), invoice);
}

void InvoicesView::cmdReceipt_Click() {
    const int row = ui.lstInvoices->Selected();
    if (row < 0) return;
    ui.txtReceipt->ShowText(ReceiptOf(invoices_[static_cast<size_t>(row)]));
    ui.stkParts->setCurrentIndex(1);
    ui.cmdReceipt->hide();
    ui.cmdBack->show();
    ui.txtReceipt->setFocus();
}

void InvoicesView::cmdBack_Click() {
    ui.stkParts->setCurrentIndex(0);
    ui.cmdReceipt->show();
    ui.cmdBack->hide();
    ui.lstInvoices->setFocus();
}

void InvoicesView::cmdClose_Click() {
    Unload();
}

}  // namespace manager
