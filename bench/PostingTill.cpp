#include "bench/PostingTill.h"

#include "core/dbModule.h"
#include "output/Folder.h"
#include "sales/Stock.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace bench {

PostingTill::PostingTill(const QString& folder, const QString& period) {
    output::SetProgramFolder(folder);
    OpenMainStore();
    invoices_ = MainStore().OpenRecordset(u"SELECT * FROM Invoices"_s);
    lines_ = MainStore().OpenRecordset(u"SELECT * FROM SalesDetails"_s);
    period_ = MainStore().OpenRecordset(u"SELECT * FROM Sales WHERE SalesID = '%1'"_s.arg(period));
}

PostingTill::~PostingTill() {
    for (auto* cursor : {&invoices_, &lines_, &period_}) cursor->Close();
    CloseStores();
}

void PostingTill::Post(const Invoices& invoice) {
    store::Burst burst(MainStore());
    AddInvoice(invoice);
    for (int i = 0; i < invoice.Lines(); ++i) AddLine(invoice, invoice.Line(i));
    period_.Edit();
    period_[u"TotalSales"] = Money::FromUnits(invoice.Total());
    period_[u"DateStoped"] = invoice.Day();
    period_[u"TimeStoped"] = invoice.Time();
    period_.Update();
    burst.End();
}

void PostingTill::AddInvoice(const Invoices& invoice) {
    invoices_.AddNew();
    invoices_[u"Kas"] = 0;
    invoices_[u"SalesID"] = invoice.Period();
    invoices_[u"InvoiceID"] = invoice.Number();
    invoices_[u"OrNo"] = invoice.Number();
    invoices_[u"CashierID"] = u"2"_s;
    invoices_[u"CashierName"] = u"kasir"_s;
    invoices_[u"PaymentType"] = 0;
    invoices_[u"DateSold"] = invoice.Day();
    invoices_[u"TimeSold"] = invoice.Time();
    invoices_[u"CashAmount"] = Money::FromUnits(invoice.Total());
    invoices_[u"TaxTotal"] = Money();
    invoices_[u"CheckAmount"] = Money();
    invoices_[u"CheckNo"] = Money();
    invoices_[u"Bank"] = u" "_s;
    invoices_[u"Kupac"] = u""_s;
    invoices_[u"IB"] = u""_s;
    invoices_.Update();
}

void PostingTill::AddLine(const Invoices& invoice, const Goods& goods) {
    lines_.AddNew();
    lines_[u"Kas"] = 0;
    lines_[u"InvoiceID"] = invoice.Number();
    lines_[u"ProdCode"] = goods.code;
    lines_[u"ProdDescription"] = goods.name;
    lines_[u"UnitPrice"] = Money::FromUnits(goods.price);
    lines_[u"QtySold"] = Money::FromWhole(1);
    TakeOffStock(goods.code, Money::FromWhole(1), [](const values::Error&) {});
    lines_[u"Amount"] = Money::FromUnits(goods.price);
    lines_[u"TaxPercent"] = Money::FromUnits(goods.TaxPercent());
    lines_[u"TaxAmount"] = Money::FromUnits(goods.TaxIn(goods.price));
    lines_[u"Unit"] = goods.unit;
    lines_[u"TaxID"] = goods.TaxID();
    lines_.Update();
}

}  // namespace bench
