#include "reports/frmTaxbyInvoice.h"

using namespace Qt::StringLiterals;

namespace {

const ReportFacts Facts{
    .name = u"frmTaxbyInvoice"_s,
    .caption = u"TAX Report by Invoices"_s,
    .variants = {{.option = u"optDatum"_s,
                  .caption = u"date"_s,
                  .head = u"SELECT ' ' AS OrNo, DateSold, ' ' AS TimeSold, Sum(CashAmount) AS IznosSaPorezom,"
                          u" Sum(TaxTotal) AS Porez, [IznosSaPorezom]-[Porez] AS IznosBezPoreza FROM Invoices"_s,
                  .group = u" GROUP BY DateSold"_s},
                 {.option = u"optStopa"_s,
                  .caption = u"invoices"_s,
                  .head = u"SELECT OrNo, DateSold, TimeSold, CashAmount as IznosSaPorezom, TaxTotal as Porez,"
                          u" [IznosSaPorezom]-[Porez] AS IznosBezPoreza FROM Invoices"_s,
                  .group = {},
                  .layout = 1}},
    .days = {.day = u" WHERE DateSold = #"_s, .from = u"  WHERE DateSold >= #"_s, .to = u"# AND DateSold <= #"_s},
    .columns = {{u"InvoiceNo"_s, 100, Look::Text, u"OrNo"_s},
                {u"Date"_s, 116, Look::Text, u"DateSold"_s},
                {u"Time"_s, -1, Look::Text, u"TimeSold"_s},
                {u"Amount without Tax"_s, 140, Look::Amount, u"IznosBezPoreza"_s},
                {u"Tax"_s, 100, Look::Amount, u"Porez"_s},
                {u"Amount with Tax"_s, 130, Look::Amount, u"IznosSaPorezom"_s}},
    .sums = {{u"Base:"_s, u"txtOsnovica"_s, 3}, {u"TAX:"_s, u"txtPDV"_s, 4}, {u"TOTAL:"_s, u"txtTotalAmount"_s, 5}},
    .emptySum = u"0,00"_s,
    .layouts = {{.title = {u"Tax report for period"_s},
                 .tellsTime = true,
                 .head = {u"Date           Amount      TAX     Total"_s},
                 .item = {{Left(10, 1, u"dd.mm.yy"_s), Right(10, 3), Right(10, 4), Right(10, 5)}},
                 .total = u"TOTAL :  "_s},
                {.title = {u"Tax report by invoices for period"_s},
                 .tellsTime = true,
                 .head = {u"InvNo    Date          Time             "_s, u"               Amount      TAX     Total"_s},
                 .item = {{Left(8, 0), Left(12, 1, u"dd.mm.yyyy"_s), Left(20, 2)},
                          {Right(20, 3), Right(10, 4), Right(10, 5)}},
                 .total = u"TOTAL :  "_s}},
    .optionsLeadToList = true,
};

}  // namespace

frmTaxbyInvoice::frmTaxbyInvoice() : PeriodReport(Facts) {
    PrintAndSave();
}
