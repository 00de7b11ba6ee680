#include "reports/frmSalesProducts.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

ReportFacts Facts() {
    return {
        .name = u"frmSalesProducts"_s,
        .caption = frmSalesProducts::tr("Sale by Products"),
        .variants = {{.head =
                          u"SELECT SalesDetails.ProdCode, SalesDetails.ProdDescription, SalesDetails.Unit,"
                          u" Sum(SalesDetails.QtySold) AS SumOfQtySold, Sum(SalesDetails.Amount) AS SumOfAmount"
                          u" FROM Invoices INNER JOIN SalesDetails ON Invoices.InvoiceID = SalesDetails.InvoiceID"_s,
                      .group = u" GROUP BY SalesDetails.ProdCode, SalesDetails.ProdDescription, SalesDetails.Unit"_s}},
        .days = {.day = u" WHERE Invoices.DateSold = #"_s,
                 .from = u" WHERE Invoices.DateSold >= #"_s,
                 .to = u"# AND Invoices.DateSold <= #"_s},
        .columns = {{frmSalesProducts::tr("ProductID"), 140},
                    {frmSalesProducts::tr("ProductName"), -1},
                    {frmSalesProducts::tr("Unit"), 60},
                    {frmSalesProducts::tr("Quantity"), 100, Look::Number},
                    {frmSalesProducts::tr("Amount"), 120, Look::Amount}},
        .sums = {{frmSalesProducts::tr("TOTAL :"), u"txtTotalAmount"_s, 4}},
        .layouts = {{//: at most 40 columns
                     .title = {Paper::tr("Sale by Products")},
                     //: 40 columns: code 3, name 24, unit 3, quantity 3, amount 7
                     .head = {Paper::tr("Rb Product Name          Unit Qua Amount")},
                     .item = {{Left(3, 0), Left(24, 1), Right(3, 2), Right(3, 3), Right(7, 4)}},
                     //: at most 10 columns, amounts stand behind it
                     .total = Paper::tr("TOTAL : ")}},
    };
}

}  // namespace

frmSalesProducts::frmSalesProducts() : PeriodReport(Facts()) {
    PrintAndSave();
}
