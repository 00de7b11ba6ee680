#include "reports/frmTrenutnoStanjeKasa.h"

#include "core/dbModule.h"
#include "reports/ReportFile.h"
#include "reports/ReportLines.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

constexpr int LineWidth = 40;

const QString Rule(LineWidth, u'-');

// Reports go to a file, whatever printer is set.
void PrintLine(const QString& line) {
    PrintToChannel(u"1"_s, line);
}

}  // namespace

void frmTrenutnoStanjeKasa::cmdPrintPregled_Click() {
    if (ui.lv1->Count() == 0) return;
    PrintAndPreview([this] {
        for (const int tab : {0, 1, 3}) {
            PassOverErrors([&] { ShowTab(tab); });
            PassOverErrors([&] { PrintListOfTab(tab); });
        }
    });
}

void frmTrenutnoStanjeKasa::cmdPrintPregledListe_Click() {
    if (ui.lv1->Count() == 0) return;
    PrintAndPreview([this] { PassOverErrors([this] { PrintListOfTab(ui.SSTab1->currentIndex()); }); });
}

void frmTrenutnoStanjeKasa::PrintAndPreview(const std::function<void()>& printLists) {
    PreviewReportFile([&] {
        PassOverErrors([this] { PrintHeading(); });
        printLists();
    });
}

void frmTrenutnoStanjeKasa::PrintHeading() {
    if (IsReview())
        //: at most 34 columns without %1, the number
        PrintLine(Paper::tr("End Report No: %1").arg(ui.lblZakljucakBr->text()));
    else
        //: at most 39 columns
        PrintLine(Paper::tr("Currently") + u' ');
    PrintLine(ui.lblDatumZakljucka->text() + u' ' + ui.lblVrijemeZakljucka->text());
    PrintLine(Rule);
    PrintLine({});
}

// The list of invoices has no layout.
void frmTrenutnoStanjeKasa::PrintListOfTab(int tab) {
    if (tab == 0) PrintRegisterList();
    if (tab == 1) PrintCashierList();
    if (tab == 3) PrintProductList();
}

void frmTrenutnoStanjeKasa::PrintRegisterList() {
    PrintList(
        //: at most 40 columns
        Paper::tr("CASH REGISTERS"),
        //: 40 columns: register 6, date 9, the period's begin 9, its end 8, amount 7
        Paper::tr("CRNo   Date   TimeFrom            Amount"),
        {Left(6, 0), Left(9, 1, u"dd.mm.yy"_s), Left(9, 2), Left(8, 3), Right(7, 4)});
}

void frmTrenutnoStanjeKasa::PrintCashierList() {
    PrintList(
        //: at most 40 columns
        Paper::tr("CASHIERS"),
        //: 40 columns: cashier's ID 4, cashier 16, amount 20
        Paper::tr("CId Cashier                       Amount"), {Left(4, 0), Left(16, 1), Right(20, 4)});
}

void frmTrenutnoStanjeKasa::PrintProductList() {
    PrintList(
        //: at most 40 columns
        Paper::tr("PRODUCTS"),
        //: 40 columns: code 4, name 23, unit 3, quantity 3, amount 7
        Paper::tr("Id  ProductName          Unit Qua Amount"),
        {Left(4, 0), Left(23, 1), Right(3, 2), Right(3, 3), Right(7, 4)});
}

void frmTrenutnoStanjeKasa::PrintList(const QString& name, const QString& columnHead, const PrintFields& item) {
    PrintLine(name);
    PrintLine(Rule);
    PrintLine(columnHead);
    PrintLine(Rule);
    for (int row = 0; row < ui.lv1->Count(); ++row) PrintLine(ItemLine(item, *ui.lv1, row));
    PrintLine(Rule);
    //: at most 10 columns, amounts stand behind it
    PrintLine(PadLeft(LineWidth, Paper::tr("TOTAL: ") + ui.txtTotalAmount->text()));
}
