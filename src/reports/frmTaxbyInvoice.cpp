#include "reports/frmTaxbyInvoice.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

ReportFacts Facts() {
    return {
        .name = u"frmTaxbyInvoice"_s,
        .caption = frmTaxbyInvoice::tr("TAX Report by Invoices"),
        .variants = {{.option = u"optDatum"_s,
                      .caption = frmTaxbyInvoice::tr("date"),
                      .head = u"SELECT ' ' AS OrNo, DateSold, ' ' AS TimeSold, Sum(CashAmount) AS IznosSaPorezom,"
                              u" Sum(TaxTotal) AS Porez, [IznosSaPorezom]-[Porez] AS IznosBezPoreza FROM Invoices"_s,
                      .group = u" GROUP BY DateSold"_s},
                     {.option = u"optStopa"_s,
                      .caption = frmTaxbyInvoice::tr("invoices"),
                      .head = u"SELECT OrNo, DateSold, TimeSold, CashAmount as IznosSaPorezom, TaxTotal as Porez,"
                              u" [IznosSaPorezom]-[Porez] AS IznosBezPoreza FROM Invoices"_s,
                      .group = {},
                      .layout = 1}},
        .days = {.day = u" WHERE DateSold = #"_s, .from = u"  WHERE DateSold >= #"_s, .to = u"# AND DateSold <= #"_s},
        .columns = {{frmTaxbyInvoice::tr("InvoiceNo"), 100, Look::Text, u"OrNo"_s},
                    {frmTaxbyInvoice::tr("Date"), 116, Look::Text, u"DateSold"_s},
                    {frmTaxbyInvoice::tr("Time"), -1, Look::Text, u"TimeSold"_s},
                    {frmTaxbyInvoice::tr("Amount without Tax"), 140, Look::Amount, u"IznosBezPoreza"_s},
                    {frmTaxbyInvoice::tr("Tax"), 100, Look::Amount, u"Porez"_s},
                    {frmTaxbyInvoice::tr("Amount with Tax"), 130, Look::Amount, u"IznosSaPorezom"_s}},
        .sums = {{frmTaxbyInvoice::tr("Base:"), u"txtOsnovica"_s, 3},
                 {frmTaxbyInvoice::tr("TAX:"), u"txtPDV"_s, 4},
                 {frmTaxbyInvoice::tr("TOTAL:"), u"txtTotalAmount"_s, 5}},
        .emptySum = u"0,00"_s,
        .layouts = {{//: at most 40 columns
                     .title = {Paper::tr("Tax report for period")},
                     .tellsTime = true,
                     //: 40 columns: date 10, amount without tax 10, tax 10, total 10
                     .head = {Paper::tr("Date           Amount      TAX     Total")},
                     .item = {{Left(10, 1, u"dd.mm.yy"_s), Right(10, 3), Right(10, 4), Right(10, 5)}},
                     //: at most 10 columns, amounts stand behind it
                     .total = Paper::tr("TOTAL :  ")},
                    {//: at most 40 columns
                     .title = {Paper::tr("Tax report by invoices for period")},
                     .tellsTime = true,
                     //: 40 columns: number 8, date 12, time 20
                     .head = {Paper::tr("InvNo    Date          Time             "),
                              //: 40 columns, to the right: amount without tax 20, tax 10, total 10
                              Paper::tr("               Amount      TAX     Total")},
                     .item = {{Left(8, 0), Left(12, 1, u"dd.mm.yyyy"_s), Left(20, 2)},
                              {Right(20, 3), Right(10, 4), Right(10, 5)}},
                     //: at most 10 columns, amounts stand behind it
                     .total = Paper::tr("TOTAL :  ")}},
        .optionsLeadToList = true,
    };
}

}  // namespace

frmTaxbyInvoice::frmTaxbyInvoice() : PeriodReport(Facts()) {
    PrintAndSave();
}
