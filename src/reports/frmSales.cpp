#include "reports/frmSales.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

const auto Joined = u" FROM Invoices LEFT JOIN Users ON Invoices.CashierID = Users.UserID"_s;

ReportFacts Facts() {
    return {
        .name = u"frmSales"_s,
        .caption = frmSales::tr("Sale by Cashier"),
        .variants =
            {{.option = u"optDatum"_s,
              .caption = frmSales::tr("date"),
              .head =
                  u"SELECT Invoices.CashierID, Users.UserName, DateSold, Sum(CashAmount) AS SumOfCashAmount"_s + Joined,
              .group = u" GROUP BY Invoices.CashierID, Users.UserName, DateSold"_s},
             {.option = u"optStopa"_s,
              .caption = frmSales::tr("cashier"),
              .head =
                  u"SELECT Invoices.CashierID, Users.UserName, '' as DateSold, Sum(CashAmount) AS SumOfCashAmount"_s +
                  Joined,
              .group = u" GROUP BY Invoices.CashierID, Users.UserName"_s}},
        .days = {.day = u"  WHERE DateSold = #"_s, .from = u"  WHERE DateSold >= #"_s, .to = u"# AND DateSold <= #"_s},
        .columns = {{frmSales::tr("CashierID"), 100},
                    {frmSales::tr("Cashier"), -1},
                    {frmSales::tr("Date"), 120},
                    {frmSales::tr("Amount"), 140, Look::Amount}},
        .sums = {{frmSales::tr("TOTAL :"), u"txtTotalAmount"_s, 3}},
        .layouts = {{//: at most 40 columns
                     .title = {Paper::tr("Sale by Cashier")},
                     //: 40 columns: cashier's ID 4, cashier 16, date 9, total 11
                     .head = {Paper::tr("CId Cashier           Date         Total")},
                     .item = {{Left(4, 0), Left(16, 1), Right(9, 2, u"dd.mm.yy"_s), Right(11, 3)}},
                     //: at most 10 columns, amounts stand behind it
                     .total = Paper::tr("TOTAL : ")}},
    };
}

}  // namespace

frmSales::frmSales() : PeriodReport(Facts()) {
    PrintAndSave();
}
