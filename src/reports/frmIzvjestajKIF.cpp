#include "reports/frmIzvjestajKIF.h"

#include "core/Settings.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

const auto Query =
    u"SELECT DateSold, Min(Val([OrNo])) AS Mini, Max(Val([OrNo])) AS Maxi, Sum(CashAmount) AS Ukupno,"
    u" Sum(TaxTotal) AS PDV, [ukupno]-[pdv] AS IznosBezPDV From Invoices"_s;
const auto Group = u" GROUP BY DateSold"_s;

ReportFacts Facts() {
    //: at most 3 columns, between the numbers of a day's first and last invoice
    const QString to = Paper::tr("to ");
    return {
        .name = u"frmIzvjestajKIF"_s,
        .caption = frmIzvjestajKIF::tr("Invoices for tax report"),
        .variants =
            {{.option = u"optDatum"_s, .caption = frmIzvjestajKIF::tr("date"), .head = Query, .group = Group},
             {.option = u"optStopa"_s, .caption = frmIzvjestajKIF::tr("invoices"), .head = Query, .group = Group}},
        .days = {.day = u"  WHERE Invoices.DateSold = #"_s,
                 .from = u"  WHERE Invoices.DateSold >= #"_s,
                 .to = u"# AND Invoices.DateSold <= #"_s,
                 .title = frmIzvjestajKIF::tr("od %1 do %2"),
                 //: at most 20 columns without %1 and %2, the days
                 .printedTitle = Paper::tr("od %1 do %2")},
        .columns = {{frmIzvjestajKIF::tr("Date"), -1, Look::Text, u"DateSold"_s},
                    {frmIzvjestajKIF::tr("InvoiceFrom"), 100, Look::Number, u"Mini"_s},
                    {frmIzvjestajKIF::tr("InvoiceTo"), 100, Look::Number, u"Maxi"_s},
                    {frmIzvjestajKIF::tr("Total without Tax"), 130, Look::Amount, u"IznosBezPDV"_s},
                    {frmIzvjestajKIF::tr("Tax"), 100, Look::Amount, u"PDV"_s},
                    {frmIzvjestajKIF::tr("Total with Tax"), 120, Look::Amount, u"Ukupno"_s}},
        .sums = {{frmIzvjestajKIF::tr("Base:"), u"txtOsnovica"_s, 3},
                 {frmIzvjestajKIF::tr("TAX:"), u"txtPDV"_s, 4},
                 {frmIzvjestajKIF::tr("TOTAL:"), u"txtTotalAmount"_s, 5}},
        .emptySum = u"0,00"_s,
        .layouts = {{//: at most 40 columns
                     .title = {Paper::tr("INVOICES REPORT"),
                               //: at most 40 columns
                               Paper::tr("Invoices report for period")},
                     .tellsTime = true,
                     //: 40 columns: day 11, first invoice 12, last invoice 17
                     .head = {Paper::tr(" DATE      InvoiceFrom InvoiceTo        "),
                              //: 40 columns, to the right: amount without tax 14, tax 10, amount with tax 16
                              Paper::tr("Total wout Tax       TAX   Total withTAX")},
                     .item = {{Left(12, 0, u"dd.mm.yyyy"_s), Left(7, 1, {}, u"   "_s), Left(7, 2, {}, to)},
                              {Right(12, 3), Right(12, 4), Right(16, 5)}},
                     //: at most 10 columns, amounts stand behind it
                     .total = Paper::tr("TOTAL  :  "),
                     .foot = {QString(40, u'-'), WebAddressLine}}},
        .optionsAreIdle = true,
    };
}

}  // namespace

frmIzvjestajKIF::frmIzvjestajKIF() : PeriodReport(Facts()) {
    PrintAndSave();
}
