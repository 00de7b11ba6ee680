#include "reports/frmSalesTax.h"

using namespace Qt::StringLiterals;

namespace {

const auto Joined =
    u" FROM Invoices INNER JOIN (SalesDetails INNER JOIN Tax ON SalesDetails.TaxID = Tax.TaxID)"
    u" ON Invoices.InvoiceID = SalesDetails.InvoiceID"_s;
const auto Amounts =
    u" Sum(SalesDetails.Taxamount) AS Porez, Sum(SalesDetails.Amount) AS IznosSaPorezom,"
    u" [IznosSaPorezom]-[Porez] AS IznosBezPoreza"_s;

// The two ways differ on paper by the blank in front of the sums alone.
ReportLayout LayoutWith(const QString& total) {
    return {.title = {u"Taxes report for period"_s},
            .tellsTime = true,
            .head = {u"Id and type TAX       Rate[%]    Date   "_s, u"             Base          TAX     Total"_s},
            .item = {{Left(2, 0), Left(20, 1), Right(7, 2), Right(11, 3, u"dd.mm.yyyy"_s)},
                     {Right(20, 4), Right(10, 5), Right(10, 6)}},
            .total = total};
}

const ReportFacts Facts{
    .name = u"frmSalesTax"_s,
    .caption = u"TAX Report"_s,
    .variants = {{.option = u"optDatum"_s,
                  .caption = u"date"_s,
                  .head = u"SELECT Tax.TaxID, Tax.Name, Tax.Percent, Invoices.DateSold,"_s + Amounts + Joined,
                  .group = u" GROUP BY Invoices.DateSold, Tax.TaxID, Tax.Name, Tax.Percent"_s},
                 {.option = u"optStopa"_s,
                  .caption = u"tax rate"_s,
                  .head = u"SELECT Tax.TaxID, Tax.Name, Tax.Percent, ' ' AS DateSold,"_s + Amounts + Joined,
                  .group = u" GROUP BY Tax.TaxID, Tax.Name, Tax.Percent"_s,
                  .layout = 1}},
    .days = {.day = u"  WHERE Invoices.DateSold = #"_s,
             .from = u"  WHERE Invoices.DateSold >= #"_s,
             .to = u"# AND Invoices.DateSold <= #"_s},
    .columns = {{u"TaxID"_s, 56, Look::Text, u"TaxID"_s},
                {u"Tax type"_s, -1, Look::Text, u"Name"_s},
                {u"Tax rate"_s, 76, Look::Amount, u"Percent"_s},
                {u"Date"_s, 116},
                {u"Osnovica"_s, 96, Look::Amount, u"IznosBezPoreza"_s},
                {u"Iznos poreza"_s, 102, Look::Amount, u"Porez"_s},
                {u"Iznos sa porezom-PDVom"_s, 172, Look::Amount, u"IznosSaPorezom"_s}},
    .sums = {{u"Base:"_s, u"txtOsnovica"_s, 4}, {u"TAX:"_s, u"txtPDV"_s, 5}, {u"TOTAL:"_s, u"txtTotalAmount"_s, 6}},
    .emptySum = u"0,00"_s,
    .layouts = {LayoutWith(u"TOTAL: "_s), LayoutWith(u"TOTAL :  "_s)},
    .optionsLeadToList = true,
};

}  // namespace

frmSalesTax::frmSalesTax() : PeriodReport(Facts) {
    PrintAndSave();
}
