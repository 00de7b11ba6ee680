#include "reports/frmPopisRobe.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "reports/ReportFile.h"
#include "reports/ReportLines.h"
#include "values/Clock.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::CDouble;
using values::Format;

namespace {

const auto ProductsQuery =
    u"SELECT ProdCode, ProdDescription, Unit,  Qty, Unitprice, [Unitprice]*[qty] AS iznos FROM Products "_s;

constexpr int ValueColumn = 5;
// One rate for all goods, whatever their own is.
constexpr double WithTax = 1.17;

constexpr int LineWidth = 80;
constexpr int NumberWidth = 5;
const auto Title = u"                         Product list - List of goods           date:"_s;
const auto Head = u"No Product name                     ID-BarcodeUnit  PRICE  Quantity     Amount"_s;
const QString Rule(LineWidth, u'-');
const PrintFields Item{Left(30, 1), Left(14, 0), Right(3, 2), Right(7, 4), Right(8, 3), Right(11, 5)};

const ReportFacts Facts{
    .name = u"frmPopisRobe"_s,
    .caption = u"Product list - List of goods"_s,
    .columns = {{u"Sifra-BarKod"_s, 130},
                {u"Naziv"_s, -1},
                {u"JM"_s, 50},
                {u"Kolicina"_s, 90, Look::Number},
                {u"Cijena"_s, 90, Look::Amount},
                {u"Vrijednost"_s, 110, Look::Amount}},
    .sums = {{u"TOTAL with Tax:"_s, u"txtTotalAmount"_s, ValueColumn},
             {u"TOTAL without Tax:"_s, u"txtTotalAmount1"_s, OwnFigure},
             {u"TAX:"_s, u"txtTotalAmount2"_s, OwnFigure}},
    .saveTitle = u"Sacuvaj kao"_s,
};

}  // namespace

// The month view and the pickers stand here as on the other reports, but choose nothing.
frmPopisRobe::frmPopisRobe() : ListReport(Facts) {
    ui.panelPeriod->show();
    PrintAndSave();
}

void frmPopisRobe::Form_Load() {
    const QDate today = values::Today();
    ui.mv1->setSelectedDate(today);
    ui.DTPicker1->setDate(today);
    ui.DTPicker2->setDate(today);
    OpenAndSum(ProductsQuery);
    if (ui.lv1->Count() > 0) TakeTaxOut();
    ui.lv1->setFocus();
}

void frmPopisRobe::TakeTaxOut() {
    const double total = CDouble(SumBox(facts_.sums[0])->text());
    QLineEdit* withoutTax = SumBox(facts_.sums[1]);
    withoutTax->setText(Format(total / WithTax, u"0.00"));
    const double tax = total - CDouble(withoutTax->text());
    SumBox(facts_.sums[2])->setText(values::NumberText(tax));
}

// The price stands before the quantity here, unlike in the list.
void frmPopisRobe::PrintReport(const QString& mode) {
    const auto print = [&mode](const QString& line) { PrintToChannel(mode, line); };
    for (const QString& line : {TheSettings.NazivFirme, TheSettings.Adresa, TheSettings.JIB, TheSettings.Tel})
        print(line);
    for (const QString& line : {QString(), QString(), Title, ui.lblNaslov->text(), QString(), Rule, Head, Rule})
        print(line);
    for (int row = 0; row < ui.lv1->Count(); ++row)
        print(PadRight(NumberWidth, QString::number(row + 1)) + ItemLine(Item, *ui.lv1, row));
    print(Rule);
    print(PadLeft(LineWidth, u"TOTAL with Tax: "_s + SumBox(facts_.sums[0])->text()));
    print(PadLeft(LineWidth, u"TAX: "_s + SumBox(facts_.sums[2])->text()));
    print(PadLeft(LineWidth, u"TOTAL without Tax: "_s + SumBox(facts_.sums[1])->text()));
}

// To the preview, whatever printer is set.
void frmPopisRobe::cmdPrint_Click() {
    if (!HasItems()) return;
    WriteReportFile([this] { PrintReport(u"1"_s); });
    ShowReportFile();
}
