#include "reports/frmSales.h"

using namespace Qt::StringLiterals;

namespace {

const auto Joined = u" FROM Invoices LEFT JOIN Users ON Invoices.CashierID = Users.UserID"_s;

const ReportFacts Facts{
    .name = u"frmSales"_s,
    .caption = u"Sale by Cashier"_s,
    .variants =
        {{.option = u"optDatum"_s,
          .caption = u"date"_s,
          .head = u"SELECT Invoices.CashierID, Users.UserName, DateSold, Sum(CashAmount) AS SumOfCashAmount"_s + Joined,
          .group = u" GROUP BY Invoices.CashierID, Users.UserName, DateSold"_s},
         {.option = u"optStopa"_s,
          .caption = u"cashier"_s,
          .head = u"SELECT Invoices.CashierID, Users.UserName, '' as DateSold, Sum(CashAmount) AS SumOfCashAmount"_s +
                  Joined,
          .group = u" GROUP BY Invoices.CashierID, Users.UserName"_s}},
    .days = {.day = u"  WHERE DateSold = #"_s, .from = u"  WHERE DateSold >= #"_s, .to = u"# AND DateSold <= #"_s},
    .columns = {{u"CashierID"_s, 100}, {u"Cashier"_s, -1}, {u"Date"_s, 120}, {u"Amount"_s, 140, Look::Amount}},
    .sums = {{u"TOTAL :"_s, u"txtTotalAmount"_s, 3}},
    .layouts = {{.title = {u"Sale by Cashier"_s},
                 .head = {u"CId Cashier           Date         Total"_s},
                 .item = {{Left(4, 0), Left(16, 1), Right(9, 2, u"dd.mm.yy"_s), Right(11, 3)}},
                 .total = u"TOTAL : "_s}},
};

}  // namespace

frmSales::frmSales() : PeriodReport(Facts) {
    PrintAndSave();
}
