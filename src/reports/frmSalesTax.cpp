#include "reports/frmSalesTax.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

const auto Joined =
    u" FROM Invoices INNER JOIN (SalesDetails INNER JOIN Tax ON SalesDetails.TaxID = Tax.TaxID)"
    u" ON Invoices.InvoiceID = SalesDetails.InvoiceID"_s;
const auto Amounts =
    u" Sum(SalesDetails.Taxamount) AS Porez, Sum(SalesDetails.Amount) AS IznosSaPorezom,"
    u" [IznosSaPorezom]-[Porez] AS IznosBezPoreza"_s;

// The two ways differ on paper by the blank in front of the sums alone.
ReportLayout LayoutWith(const QString& total) {
    return {//: at most 40 columns
            .title = {Paper::tr("Taxes report for period")},
            .tellsTime = true,
            //: 40 columns: ID and name of the tax 22, rate 7, date 11
            .head = {Paper::tr("Id and type TAX       Rate[%]    Date   "),
                     //: 40 columns, to the right: base 20, tax 10, total 10
                     Paper::tr("             Base          TAX     Total")},
            .item = {{Left(2, 0), Left(20, 1), Right(7, 2), Right(11, 3, u"dd.mm.yyyy"_s)},
                     {Right(20, 4), Right(10, 5), Right(10, 6)}},
            .total = total};
}

ReportFacts Facts() {
    //: at most 10 columns, amounts stand behind it
    const QString totalByDay = Paper::tr("TOTAL: ");
    //: at most 10 columns, amounts stand behind it
    const QString totalByRate = Paper::tr("TOTAL :  ");
    return {
        .name = u"frmSalesTax"_s,
        .caption = frmSalesTax::tr("TAX Report"),
        .variants = {{.option = u"optDatum"_s,
                      .caption = frmSalesTax::tr("date"),
                      .head = u"SELECT Tax.TaxID, Tax.Name, Tax.Percent, Invoices.DateSold,"_s + Amounts + Joined,
                      .group = u" GROUP BY Invoices.DateSold, Tax.TaxID, Tax.Name, Tax.Percent"_s},
                     {.option = u"optStopa"_s,
                      .caption = frmSalesTax::tr("tax rate"),
                      .head = u"SELECT Tax.TaxID, Tax.Name, Tax.Percent, ' ' AS DateSold,"_s + Amounts + Joined,
                      .group = u" GROUP BY Tax.TaxID, Tax.Name, Tax.Percent"_s,
                      .layout = 1}},
        .days = {.day = u"  WHERE Invoices.DateSold = #"_s,
                 .from = u"  WHERE Invoices.DateSold >= #"_s,
                 .to = u"# AND Invoices.DateSold <= #"_s},
        .columns = {{frmSalesTax::tr("TaxID"), 56, Look::Text, u"TaxID"_s},
                    {frmSalesTax::tr("Tax type"), -1, Look::Text, u"Name"_s},
                    {frmSalesTax::tr("Tax rate"), 76, Look::Amount, u"Percent"_s},
                    {frmSalesTax::tr("Date"), 116},
                    {frmSalesTax::tr("Osnovica"), 96, Look::Amount, u"IznosBezPoreza"_s},
                    {frmSalesTax::tr("Iznos poreza"), 102, Look::Amount, u"Porez"_s},
                    {frmSalesTax::tr("Iznos sa porezom-PDVom"), 172, Look::Amount, u"IznosSaPorezom"_s}},
        .sums = {{frmSalesTax::tr("Base:"), u"txtOsnovica"_s, 4},
                 {frmSalesTax::tr("TAX:"), u"txtPDV"_s, 5},
                 {frmSalesTax::tr("TOTAL:"), u"txtTotalAmount"_s, 6}},
        .emptySum = u"0,00"_s,
        .layouts = {LayoutWith(totalByDay), LayoutWith(totalByRate)},
        .optionsLeadToList = true,
    };
}

}  // namespace

frmSalesTax::frmSalesTax() : PeriodReport(Facts()) {
    PrintAndSave();
}
