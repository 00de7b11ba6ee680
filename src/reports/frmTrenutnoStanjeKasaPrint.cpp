#include "reports/frmTrenutnoStanjeKasa.h"

#include "core/dbModule.h"
#include "reports/ReportFile.h"
#include "values/Format.h"

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
    PrintList(u"CRNo   Date   TimeFrom            Amount"_s, [this](int row) {
        return PadRight(6, ui.lv1->Text(row)) + PadRight(9, values::Format(ui.lv1->Text(row, 1), u"dd.mm.yy")) +
               PadRight(9, ui.lv1->Text(row, 2)) + PadRight(8, ui.lv1->Text(row, 3)) + PadLeft(7, ui.lv1->Text(row, 4));
    });
}

void frmTrenutnoStanjeKasa::PrintCashierList() {
    PrintList(u"CId Cashier                       Amount"_s, [this](int row) {
        return PadRight(4, ui.lv1->Text(row)) + PadRight(16, ui.lv1->Text(row, 1)) + PadLeft(20, ui.lv1->Text(row, 4));
    });
}

void frmTrenutnoStanjeKasa::PrintProductList() {
    PrintList(u"Id  ProductName          Unit Qua Amount"_s, [this](int row) {
        return PadRight(4, ui.lv1->Text(row)) + PadRight(23, ui.lv1->Text(row, 1)) + PadLeft(3, ui.lv1->Text(row, 2)) +
               PadLeft(3, ui.lv1->Text(row, 3)) + PadLeft(7, ui.lv1->Text(row, 4));
    });
}

void frmTrenutnoStanjeKasa::PrintList(const QString& columnHead, const std::function<QString(int row)>& line) {
    PrintLine(ui.lblTab->text());
    PrintLine(Rule);
    PrintLine(columnHead);
    PrintLine(Rule);
    for (int row = 0; row < ui.lv1->Count(); ++row) PrintLine(line(row));
    PrintLine(Rule);
    PrintLine(PadLeft(LineWidth, u"TOTAL: "_s + ui.txtTotalAmount->text()));
}
