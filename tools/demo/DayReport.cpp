#include "demo/DayReport.h"

#include "core/dbModule.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;
using values::Format;

namespace {

const auto InvoicesQuery =
    u"SELECT Val(OrNo) AS No, TimeSold, CashierName, CashAmount FROM Invoices ORDER BY Val(OrNo)"_s;
const auto ProductsQuery =
    u"SELECT ProdDescription, Unit, Sum(QtySold) AS Qty, Sum(Amount) AS Amount"
    u" FROM SalesDetails GROUP BY ProdDescription, Unit ORDER BY ProdDescription"_s;

}  // namespace

QString DayReport(store::Database& main) {
    QStringList lines;
    auto invoices = main.OpenRecordset(InvoicesQuery);
    values::Money total;
    for (auto& invoice : invoices) {
        lines << PadLeft(4, invoice[u"No"].Text()) + u"  "_s + Format(invoice[u"TimeSold"], u"hh:mm:ss") + u"  "_s +
                     PadRight(16, invoice[u"CashierName"].TextOrEmpty()) +
                     PadLeft(8, Format(invoice[u"CashAmount"], u"0.00"));
        total += invoice[u"CashAmount"].Money();
    }
    lines << PadLeft(40, u"TOTAL: "_s + Format(total, u"0.00")) << QString();
    auto products = main.OpenRecordset(ProductsQuery);
    for (auto& product : products)
        lines << PadRight(24, product[u"ProdDescription"].TextOrEmpty()) + PadLeft(5, product[u"Qty"].Text()) + u" "_s +
                     PadRight(3, product[u"Unit"].TextOrEmpty()) + PadLeft(7, Format(product[u"Amount"], u"0.00"));
    return lines.join(u'\n');
}
