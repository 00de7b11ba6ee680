#include "reports/frmZakljucakPregled.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

ReportFacts Facts() {
    return {
        .name = u"frmZakljucakPregled"_s,
        .caption = frmZakljucakPregled::tr("End Reports review"),
        .variants = {{.option = u"optZakljucak"_s,
                      .caption = frmZakljucakPregled::tr("end report"),
                      .head = u"SELECT Kas, SalesID, DateGenerated, TimeGenerated, TimeStoped, TotalSales FROM Sales"_s,
                      .group = {}},
                     {.option = u"optKasa"_s,
                      .caption = frmZakljucakPregled::tr("cash register"),
                      .head =
                          u"SELECT Kas, ' ' as SalesID, ' ' as DateGenerated, ' ' as TimeGenerated, ' ' as TimeStoped,"
                          u" Sum(TotalSales) as Total FROM Sales"_s,
                      .group = u" GROUP BY Kas"_s},
                     {.option = u"optDatum"_s,
                      .caption = frmZakljucakPregled::tr("date"),
                      .head =
                          u"SELECT ' ' as Kas, ' ' as SalesID, DateGenerated, ' ' as TimeGenerated, ' ' as TimeStoped,"
                          u" Sum(TotalSales) as Total FROM Sales"_s,
                      .group = u" GROUP BY DateGenerated"_s}},
        .days = {.day = u"  WHERE DateGenerated = #"_s,
                 .from = u"  WHERE DateGenerated >= #"_s,
                 .to = u"# AND DateGenerated <= #"_s},
        .columns = {{frmZakljucakPregled::tr("CR"), 60},
                    {frmZakljucakPregled::tr("EndNo "), 90},
                    {frmZakljucakPregled::tr("Date"), 120},
                    {frmZakljucakPregled::tr("Time From"), 110},
                    {frmZakljucakPregled::tr("Time to"), -1},
                    {frmZakljucakPregled::tr("Amount"), 130, Look::Amount}},
        .sums = {{frmZakljucakPregled::tr("TOTAL:"), u"txtTotalAmount"_s, 5}},
        .layouts = {{//: at most 40 columns
                     .title = {Paper::tr("End Reports")},
                     //: 40 columns: register 3, period 4, date 9, its begin 9, its end 8, amount 7
                     .head = {Paper::tr("CR End  Date    TimeFr   TimeTo   Amount")},
                     .item = {{Left(3, 0), Left(4, 1), Left(9, 2, u"dd.mm.yy"_s), Left(9, 3), Left(8, 4), Right(7, 5)}},
                     //: at most 10 columns, amounts stand behind it
                     .total = Paper::tr("TOTAL: ")}},
    };
}

}  // namespace

frmZakljucakPregled::frmZakljucakPregled() : PeriodReport(Facts()) {
    PrintAndSave();
}
