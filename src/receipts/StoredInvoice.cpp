#include "receipts/StoredInvoice.h"

#include "core/dbModule.h"
#include "receipts/TaxRecap.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;
using values::Format;

namespace {

const auto InvoicesQuery =
    u"SELECT InvoiceID, Val(OrNo) as No, DateSold, TimeSold, CashAmount, TaxTotal, CashierName"
    u" FROM Invoices "_s;
const auto InvoicesOrder = u" ORDER BY Val(OrNo)"_s;
const auto DetailsQuery =
    u"SELECT ProdCode, ProdDescription, UnitPrice, QtySold, Unit, Amount, Taxamount, TaxPercent, TaxID, InvoiceID"
    u" FROM SalesDetails"_s;

}  // namespace

QString StoredInvoicesQuery(const QString& where) {
    return InvoicesQuery + where + InvoicesOrder;
}

InvoiceText ReadInvoiceHead(store::Recordset& invoices) {
    return {.orNo = invoices[u"No"].TextOrEmpty(),
            .customer = {},
            .ident = {},
            .cashier = invoices[u"CashierName"].TextOrEmpty(),
            .total = Format(invoices[u"CashAmount"].Get(), u"0.00"),
            .taxTotal = Format(invoices[u"TaxTotal"].Get(), u"0.00"),
            .items = {},
            .taxes = {}};
}

QList<InvoiceText::Item> ReadInvoiceLines(store::Recordset& invoices) {
    auto rs = MainStore().OpenSnapshot(DetailsQuery + u" WHERE InvoiceID = '"_s + invoices[u"InvoiceID"].TextOrEmpty() +
                                       u"'"_s);
    QList<InvoiceText::Item> items;
    for (auto& line : rs)
        items << InvoiceText::Item{.code = line[u"ProdCode"].TextOrEmpty(),
                                   .description = line[u"ProdDescription"].TextOrEmpty(),
                                   .unitPrice = Format(line[u"UnitPrice"].Get(), u"0.00"),
                                   .quantity = line[u"QtySold"].TextOrEmpty(),
                                   .amount = Format(line[u"Amount"].Get(), u"0.00"),
                                   .taxPercent = Format(line[u"TaxPercent"].Get(), u"0.00"),
                                   .taxAmount = Format(line[u"TaxAmount"].Get(), u"0.00"),
                                   .unit = line[u"Unit"].TextOrEmpty(),
                                   .taxID = line[u"TaxID"].TextOrEmpty(),
                                   .productID = {}};
    return items;
}

InvoiceText ReadInvoice(store::Recordset& invoices) {
    InvoiceText invoice = ReadInvoiceHead(invoices);
    invoice.items = ReadInvoiceLines(invoices);
    invoice.taxes = TaxRecapOf(invoice.items);
    return invoice;
}
