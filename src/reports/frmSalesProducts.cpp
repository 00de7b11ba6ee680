#include "reports/frmSalesProducts.h"

using namespace Qt::StringLiterals;

namespace {

const ReportFacts Facts{
    .name = u"frmSalesProducts"_s,
    .caption = u"Sale by Products"_s,
    .variants = {{.head = u"SELECT SalesDetails.ProdCode, SalesDetails.ProdDescription, SalesDetails.Unit,"
                          u" Sum(SalesDetails.QtySold) AS SumOfQtySold, Sum(SalesDetails.Amount) AS SumOfAmount"
                          u" FROM Invoices INNER JOIN SalesDetails ON Invoices.InvoiceID = SalesDetails.InvoiceID"_s,
                  .group = u" GROUP BY SalesDetails.ProdCode, SalesDetails.ProdDescription, SalesDetails.Unit"_s}},
    .days = {.day = u" WHERE Invoices.DateSold = #"_s,
             .from = u" WHERE Invoices.DateSold >= #"_s,
             .to = u"# AND Invoices.DateSold <= #"_s},
    .columns = {{u"ProductID"_s, 140},
                {u"ProductName"_s, -1},
                {u"Unit"_s, 60},
                {u"Quantity"_s, 100, Look::Number},
                {u"Amount"_s, 120, Look::Amount}},
    .sums = {{u"TOTAL :"_s, u"txtTotalAmount"_s, 4}},
    .layouts = {{.title = {u"Sale by Products"_s},
                 .head = {u"Rb Product Name          Unit Qua Amount"_s},
                 .item = {{Left(3, 0), Left(24, 1), Right(3, 2), Right(3, 3), Right(7, 4)}},
                 .total = u"TOTAL : "_s}},
};

}  // namespace

frmSalesProducts::frmSalesProducts() : PeriodReport(Facts) {
    PrintAndSave();
}
