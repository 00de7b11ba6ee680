#include "reports/frmTrenutnoStanjeKasa.h"

#include "core/dbModule.h"
#include "reports/ReportFile.h"
#include "reports/ReportLines.h"

using namespace Qt::StringLiterals;

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
    PrintLine(ui.lblNazivPregleda->text() + u' ' + ui.lblZakljucakBr->text());
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
    PrintList(u"CRNo   Date   TimeFrom            Amount"_s,
              {Left(6, 0), Left(9, 1, u"dd.mm.yy"_s), Left(9, 2), Left(8, 3), Right(7, 4)});
}

void frmTrenutnoStanjeKasa::PrintCashierList() {
    PrintList(u"CId Cashier                       Amount"_s, {Left(4, 0), Left(16, 1), Right(20, 4)});
}

void frmTrenutnoStanjeKasa::PrintProductList() {
    PrintList(u"Id  ProductName          Unit Qua Amount"_s,
              {Left(4, 0), Left(23, 1), Right(3, 2), Right(3, 3), Right(7, 4)});
}

void frmTrenutnoStanjeKasa::PrintList(const QString& columnHead, const PrintFields& item) {
    PrintLine(ui.lblTab->text());
    PrintLine(Rule);
    PrintLine(columnHead);
    PrintLine(Rule);
    for (int row = 0; row < ui.lv1->Count(); ++row) PrintLine(ItemLine(item, *ui.lv1, row));
    PrintLine(Rule);
    PrintLine(PadLeft(LineWidth, u"TOTAL: "_s + ui.txtTotalAmount->text()));
}
