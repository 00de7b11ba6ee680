#include "reports/frmIzvjestajKIF.h"

#include "core/Settings.h"

using namespace Qt::StringLiterals;

namespace {

const auto Query =
    u"SELECT DateSold, Min(Val([OrNo])) AS Mini, Max(Val([OrNo])) AS Maxi, Sum(CashAmount) AS Ukupno,"
    u" Sum(TaxTotal) AS PDV, [ukupno]-[pdv] AS IznosBezPDV From Invoices"_s;
const auto Group = u" GROUP BY DateSold"_s;

const ReportFacts Facts{
    .name = u"frmIzvjestajKIF"_s,
    .caption = u"Invoices for tax report"_s,
    .variants = {{.option = u"optDatum"_s, .caption = u"date"_s, .head = Query, .group = Group},
                 {.option = u"optStopa"_s, .caption = u"invoices"_s, .head = Query, .group = Group}},
    .days = {.day = u"  WHERE Invoices.DateSold = #"_s,
             .from = u"  WHERE Invoices.DateSold >= #"_s,
             .to = u"# AND Invoices.DateSold <= #"_s,
             .titleFrom = u"od "_s,
             .titleTo = u" do "_s},
    .columns = {{u"Date"_s, -1, Look::Text, u"DateSold"_s},
                {u"InvoiceFrom"_s, 100, Look::Number, u"Mini"_s},
                {u"InvoiceTo"_s, 100, Look::Number, u"Maxi"_s},
                {u"Total without Tax"_s, 130, Look::Amount, u"IznosBezPDV"_s},
                {u"Tax"_s, 100, Look::Amount, u"PDV"_s},
                {u"Total with Tax"_s, 120, Look::Amount, u"Ukupno"_s}},
    .sums = {{u"Base:"_s, u"txtOsnovica"_s, 3}, {u"TAX:"_s, u"txtPDV"_s, 4}, {u"TOTAL:"_s, u"txtTotalAmount"_s, 5}},
    .emptySum = u"0,00"_s,
    .layouts = {{.title = {u"INVOICES REPORT"_s, u"Invoices report for period"_s},
                 .tellsTime = true,
                 .head = {u" DATE      InvoiceFrom InvoiceTo        "_s, u"Total wout Tax       TAX   Total withTAX"_s},
                 .item = {{Left(12, 0, u"dd.mm.yyyy"_s), Left(7, 1, {}, u"   "_s), Left(7, 2, {}, u"to "_s)},
                          {Right(12, 3), Right(12, 4), Right(16, 5)}},
                 .total = u"TOTAL  :  "_s,
                 .foot = {QString(40, u'-'), WebAddressLine}}},
    .optionsAreIdle = true,
};

}  // namespace

frmIzvjestajKIF::frmIzvjestajKIF() : PeriodReport(Facts) {
    PrintAndSave();
}
