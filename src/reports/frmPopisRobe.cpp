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
using values::Paper;

namespace {

const auto ProductsQuery =
    u"SELECT ProdCode, ProdDescription, Unit,  Qty, Unitprice, [Unitprice]*[qty] AS iznos FROM Products "_s;

constexpr int ValueColumn = 5;
// One rate for all goods, whatever their own is.
constexpr double WithTax = 1.17;

constexpr int LineWidth = 80;
constexpr int NumberWidth = 5;
const QString Rule(LineWidth, u'-');
const PrintFields Item{Left(30, 1), Left(14, 0), Right(3, 2), Right(7, 4), Right(8, 3), Right(11, 5)};

ReportFacts Facts() {
    return {
        .name = u"frmPopisRobe"_s,
        .caption = frmPopisRobe::tr("Product list - List of goods"),
        .columns = {{frmPopisRobe::tr("Sifra-BarKod"), 130},
                    {frmPopisRobe::tr("Naziv"), -1},
                    {frmPopisRobe::tr("JM"), 50},
                    {frmPopisRobe::tr("Kolicina"), 90, Look::Number},
                    {frmPopisRobe::tr("Cijena"), 90, Look::Amount},
                    {frmPopisRobe::tr("Vrijednost"), 110, Look::Amount}},
        .sums = {{frmPopisRobe::tr("TOTAL with Tax:"), u"txtTotalAmount"_s, ValueColumn},
                 {frmPopisRobe::tr("TOTAL without Tax:"), u"txtTotalAmount1"_s, OwnFigure},
                 {frmPopisRobe::tr("TAX:"), u"txtTotalAmount2"_s, OwnFigure}},
        .saveTitle = frmPopisRobe::tr("Sacuvaj kao"),
    };
}

}  // namespace

// The month view and the pickers stand here as on the other reports, but choose nothing.
frmPopisRobe::frmPopisRobe() : ListReport(Facts()) {
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
    //: at most 80 columns
    const QString title = Paper::tr("                         Product list - List of goods           date:");
    //: 78 columns: number 5, name 30, code 14, unit 3, price 7, quantity 8, amount 11
    const QString head = Paper::tr("No Product name                     ID-BarcodeUnit  PRICE  Quantity     Amount");
    for (const QString& line : {QString(), QString(), title, ui.lblNaslov->text(), QString(), Rule, head, Rule})
        print(line);
    for (int row = 0; row < ui.lv1->Count(); ++row)
        print(PadRight(NumberWidth, QString::number(row + 1)) + ItemLine(Item, *ui.lv1, row));
    print(Rule);
    //: at most 60 columns without %1, the amount
    print(PadLeft(LineWidth, Paper::tr("TOTAL with Tax: %1").arg(SumBox(facts_.sums[0])->text())));
    //: at most 60 columns without %1, the amount
    print(PadLeft(LineWidth, Paper::tr("TAX: %1").arg(SumBox(facts_.sums[2])->text())));
    //: at most 60 columns without %1, the amount
    print(PadLeft(LineWidth, Paper::tr("TOTAL without Tax: %1").arg(SumBox(facts_.sums[1])->text())));
}

// To the preview, whatever printer is set.
void frmPopisRobe::cmdPrint_Click() {
    if (!HasItems()) return;
    WriteReportFile([this] { PrintReport(u"1"_s); });
    ShowReportFile();
}
