#include "reports/frmZakljucakPregled.h"

using namespace Qt::StringLiterals;

namespace {

const ReportFacts Facts{
    .name = u"frmZakljucakPregled"_s,
    .caption = u"End Reports review"_s,
    .variants = {{.option = u"optZakljucak"_s,
                  .caption = u"end report"_s,
                  .head = u"SELECT Kas, SalesID, DateGenerated, TimeGenerated, TimeStoped, TotalSales FROM Sales"_s,
                  .group = {}},
                 {.option = u"optKasa"_s,
                  .caption = u"cash register"_s,
                  .head = u"SELECT Kas, ' ' as SalesID, ' ' as DateGenerated, ' ' as TimeGenerated, ' ' as TimeStoped,"
                          u" Sum(TotalSales) as Total FROM Sales"_s,
                  .group = u" GROUP BY Kas"_s},
                 {.option = u"optDatum"_s,
                  .caption = u"date"_s,
                  .head = u"SELECT ' ' as Kas, ' ' as SalesID, DateGenerated, ' ' as TimeGenerated, ' ' as TimeStoped,"
                          u" Sum(TotalSales) as Total FROM Sales"_s,
                  .group = u" GROUP BY DateGenerated"_s}},
    .days = {.day = u"  WHERE DateGenerated = #"_s,
             .from = u"  WHERE DateGenerated >= #"_s,
             .to = u"# AND DateGenerated <= #"_s},
    .columns = {{u"CR"_s, 60},
                {u"EndNo "_s, 90},
                {u"Date"_s, 120},
                {u"Time From"_s, 110},
                {u"Time to"_s, -1},
                {u"Amount"_s, 130, Look::Amount}},
    .sums = {{u"TOTAL:"_s, u"txtTotalAmount"_s, 5}},
    .layouts = {{.title = {u"End Reports"_s},
                 .head = {u"CR End  Date    TimeFr   TimeTo   Amount"_s},
                 .item = {{Left(3, 0), Left(4, 1), Left(9, 2, u"dd.mm.yy"_s), Left(9, 3), Left(8, 4), Right(7, 5)}},
                 .total = u"TOTAL: "_s}},
};

}  // namespace

frmZakljucakPregled::frmZakljucakPregled() : PeriodReport(Facts) {
    PrintAndSave();
}
