#include "reports/frmTrenutnoStanjeKasa.h"

#include <QScopeGuard>
#include <QSignalBlocker>

#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "reports/EndReport.h"
#include "support/Help.h"
#include "values/Clock.h"
#include "values/DateText.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::DateText;
using values::Format;
using values::TimeText;

namespace {

const auto LastMomentQuery = u"SELECT DateStoped, TimeStoped FROM Sales WHERE Grupni = %1"_s;
const auto WhereGrupni = u" WHERE Grupni = "_s;

constexpr int FirstAmount = 4;
constexpr int Columns = 6;

using Column = forms::ListColumn;
const Column Hidden{{}, Qt::AlignLeft, 0};

// What one tab lists: the pieces of its query, and how the list shows them.
struct Tab {
    QString name;
    QString totalCaption;
    QString head;
    QString whereOpen;
    QString group = {};
    QString order = {};
    std::vector<Column> columns;
    bool showsTax = false;
};

const Tab Tabs[] = {
    {.name = u"CASH REGISTERS"_s,
     .totalCaption = u"TOTAL FOR ALL CRs:"_s,
     .head = u"SELECT Kas, DateGenerated, TimeGenerated, ' ' as TimeStoped, TotalSales"
             u" FROM Sales"_s,
     .whereOpen = u" WHERE Closed = False"_s,
     .columns = {{u"CASH REGISTER No."_s, Qt::AlignLeft, 200},
                 {u"Date"_s, Qt::AlignLeft, 160},
                 {u"Time"_s, Qt::AlignLeft, -1},
                 Hidden,
                 {u"AMOUNT"_s, Qt::AlignRight, 200},
                 Hidden}},
    {.name = u"CASHIERS"_s,
     .totalCaption = u"TOTAL FOR ALL CASHIERS:"_s,
     .head = u"SELECT Invoices.CashierID, Invoices.CashierName, '' as tri, '' as cetri,"
             u"  Sum(Invoices.CashAmount) AS SumOfCashAmount"
             u" FROM Sales LEFT JOIN Invoices ON Sales.SalesID = Invoices.SalesID"_s,
     .whereOpen = u" Where Closed = False"_s,
     .group = u" GROUP BY Invoices.CashierID, Invoices.CashierName"_s,
     .columns = {{u"ID"_s, Qt::AlignLeft, 120},
                 {u"Cashier"_s, Qt::AlignLeft, -1},
                 Hidden,
                 Hidden,
                 {u"Amount"_s, Qt::AlignRight, 200},
                 Hidden}},
    {.name = u"INVOICES"_s,
     .totalCaption = u"TOTAL FOR ALL INVOICES:"_s,
     .head = u"SELECT Invoices.Kas, Invoices.OrNo, Invoices.DateSold, Invoices.TimeSold, Invoices.CashAmount,"
             u" Invoices.TaxTotal, Invoices.InvoiceID"
             u" FROM Sales INNER JOIN Invoices ON Sales.SalesID = Invoices.SalesID"_s,
     .whereOpen = u" WHERE ((Sales.Closed)=False)"_s,
     .order = u" ORDER BY Invoices.InvoiceID"_s,
     .columns = {{u"CR No."_s, Qt::AlignLeft, 90},
                 {u"Invoice No."_s, Qt::AlignLeft, 140},
                 {u"Date"_s, Qt::AlignLeft, 140},
                 {u"Time"_s, Qt::AlignLeft, -1},
                 {u"Amount"_s, Qt::AlignRight, 160},
                 {u"Tax"_s, Qt::AlignRight, 150}},
     .showsTax = true},
    {.name = u"PRODUCTS"_s,
     .totalCaption = u"TOTAL FOR ALL PRODUCTS:"_s,
     .head = u"SELECT SalesDetails.ProdCode, SalesDetails.ProdDescription, SalesDetails.Unit,"
             u" Sum(SalesDetails.QtySold) AS SumOfQtySold, Sum(SalesDetails.Amount) AS SumOfAmount"
             u" FROM Sales INNER JOIN (Invoices INNER JOIN SalesDetails ON Invoices.InvoiceID = SalesDetails.InvoiceID)"
             u" ON Sales.SalesID = Invoices.SalesID"_s,
     .whereOpen = u" WHERE ((Sales.Closed)=False)"_s,
     .group = u" GROUP BY SalesDetails.ProdCode, SalesDetails.ProdDescription, SalesDetails.Unit"_s,
     .order = u" ORDER BY SalesDetails.ProdCode"_s,
     .columns = {{u"ProductID"_s, Qt::AlignLeft, 160},
                 {u"Product name"_s, Qt::AlignLeft, -1},
                 {u"Unit"_s, Qt::AlignLeft, 90},
                 {u"Quantity"_s, Qt::AlignRight, 130},
                 {u"Amount"_s, Qt::AlignRight, 160},
                 Hidden}},
};

// A column that the query lacks, or whose value cannot be read, leaves its cell empty.
QString Cell(store::Recordset& row, int column) {
    if (column >= row.FieldCount()) return {};
    try {
        const values::Value value = row[column];
        return column < FirstAmount ? value.TextOrEmpty() : Format(value, u"0.00");
    } catch (const values::Error&) {
        return {};
    }
}

}  // namespace

frmTrenutnoStanjeKasa::frmTrenutnoStanjeKasa() {
    ui.setupUi(this);
    for (int tab = 0; tab < ui.SSTab1->count(); ++tab) {
        ui.SSTab1->widget(tab)->setObjectName(ui.SSTab1->tabText(tab));
        ui.SSTab1->setTabToolTip(tab, ui.SSTab1->tabText(tab));
    }
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose},
                  {Qt::Key_1, [this] { ShowTab(0); }},
                  {Qt::Key_2, [this] { ShowTab(1); }},
                  {Qt::Key_3, [this] { ShowTab(2); }},
                  {Qt::Key_4, [this] { ShowTab(3); }},
                  {Qt::Key_F1, ui.cmdHelp},
                  {Qt::Key_F4, ui.cmdPrintPregledListe},
                  {Qt::Key_F5, ui.cmdPrintPregled},
                  {Qt::Key_F6, ui.cmdOsvjezi},
                  {Qt::Key_F12, ui.cmdClose}});
    ShrinkFigures({ui.txtPDV, ui.txtTotalAmount});
    connect(ui.SSTab1, &QTabWidget::currentChanged, this, Guarded(&frmTrenutnoStanjeKasa::SSTab1_Click));
    // A touch on the tab that is open already loads it again, as its key does.
    connect(ui.SSTab1, &QTabWidget::tabBarClicked, this, [this](int tab) {
        if (tab == ui.SSTab1->currentIndex()) Guarded (&frmTrenutnoStanjeKasa::SSTab1_Click)();
    });
    On(ui.cmdZakljuci, &frmTrenutnoStanjeKasa::cmdZakljuci_Click);
    On(ui.cmdOsvjezi, &frmTrenutnoStanjeKasa::cmdOsvjezi_Click);
    On(ui.cmdPrintPregled, &frmTrenutnoStanjeKasa::cmdPrintPregled_Click);
    On(ui.cmdPrintPregledListe, &frmTrenutnoStanjeKasa::cmdPrintPregledListe_Click);
    On(ui.cmdHelp, &frmTrenutnoStanjeKasa::cmdHelp_Click);
    On(ui.cmdClose, &frmTrenutnoStanjeKasa::cmdClose_Click);
}

void frmTrenutnoStanjeKasa::Form_Load() {
    firstActivate_ = true;
    endReportDone_ = false;
    ui.lblPrethodni->clear();
    const auto last = LastEndReport();
    if (!last) return;
    lastGrupni_ = *last;
    auto moment = MainStore().OpenRecordset(LastMomentQuery.arg(lastGrupni_));
    ui.lblPrethodni->setText(moment[u"DateStoped"].TextOrEmpty() + u' ' + moment[u"TimeStoped"].TextOrEmpty());
}

void frmTrenutnoStanjeKasa::Form_Activate() {
    if (IsReview()) {
        ShowAsReview();
        ui.lblPrethodni->hide();
        ui.lblPrethodniNaslov->hide();
    }
    ShowTab(std::exchange(firstActivate_, false) ? 0 : ui.SSTab1->currentIndex());
}

// After an End Report this register starts anew, with a period of its own.
bool frmTrenutnoStanjeKasa::Form_Unload() {
    if (endReportDone_) forms::EndProgram();
    return true;
}

bool frmTrenutnoStanjeKasa::IsReview() const {
    return ui.lblTipPregleda->text() == u"2";
}

void frmTrenutnoStanjeKasa::ShowAsReview() {
    setWindowTitle(u"End Report"_s);
    ui.lblNazivPregleda->setText(u"End Report No:"_s);
    ui.lblUpozorenje->setText(u"Lists show balance for selected End Report."_s);
    for (QLabel* label : {ui.lblDatumZakljucka, ui.lblVrijemeZakljucka, ui.lblZakljucakBr}) label->show();
    ui.cmdZakljuci->setEnabled(false);
}

void frmTrenutnoStanjeKasa::ShowTab(int tab) {
    {
        const QSignalBlocker quiet(ui.SSTab1);
        ui.SSTab1->setCurrentIndex(tab);
    }
    SSTab1_Click();
}

void frmTrenutnoStanjeKasa::SSTab1_Click() {
    const Tab& tab = Tabs[ui.SSTab1->currentIndex()];
    ui.lblTab->setText(tab.name);
    ui.lblTotal->setText(tab.totalCaption);
    ui.lblPDV->setVisible(tab.showsTax);
    ui.txtPDV->setVisible(tab.showsTax);
    ui.lv1->SetColumns(tab.columns);

    queryHead_ = tab.head;
    queryWhere_ = IsReview() ? WhereGrupni + ui.lblZakljucakBr->text() : tab.whereOpen;
    queryGroup_ = tab.group;
    queryOrder_ = tab.order;
    if (tab.showsTax)
        LoadInvoiceList();
    else
        LoadAmountList();
}

void frmTrenutnoStanjeKasa::LoadAmountList() {
    FillList(MainStore().OpenSnapshot(queryHead_ + queryWhere_ + queryGroup_ + queryOrder_));
    ui.txtTotalAmount->setText(SumOfColumn(FirstAmount));
    if (ui.lblTipPregleda->text() != u"1") return;
    const QDateTime now = values::Now();
    ui.lblDatumZakljucka->setText(DateText(now.date()));
    ui.lblVrijemeZakljucka->setText(TimeText(now.time()));
}

void frmTrenutnoStanjeKasa::LoadInvoiceList() {
    LoadAmountList();
    ui.txtPDV->setText(SumOfColumn(FirstAmount + 1));
}

void frmTrenutnoStanjeKasa::FillList(store::Recordset rows) {
    ui.lv1->Clear();
    ui.lv1->BeginFill();
    const auto end = qScopeGuard([this] { ui.lv1->EndFill(); });
    for (auto& row : rows) {
        QStringList cells;
        for (int column = 0; column < Columns; ++column) cells << Cell(row, column);
        ui.lv1->Add(cells);
    }
}

// Of the texts as they are shown; a period without invoices has an empty amount.
QString frmTrenutnoStanjeKasa::SumOfColumn(int column) const {
    values::Money sum;
    for (int row = 0; row < ui.lv1->Count(); ++row) {
        const QString amount = ui.lv1->Text(row, column);
        if (!amount.isEmpty()) sum += values::CMoney(amount);
    }
    return Format(sum, u"0.00");
}

void frmTrenutnoStanjeKasa::cmdZakljuci_Click() {
    const QDateTime now = values::Now();
    const QTime time(now.time().hour(), now.time().minute(), now.time().second());
    if (!forms::Ask(u"Do you want to make End Report?\n "_s, u"Do you want to make End Report?"_s)) return;
    if (auto* salesScreen = forms::FindForm(u"frmORVAtouch")) salesScreen->Unload();
    endReportDone_ = true;
    CloseOpenPeriods(now.date(), time, lastGrupni_);

    ui.lblTipPregleda->setText(u"2"_s);
    ui.lblDatumZakljucka->setText(DateText(now.date()));
    ui.lblVrijemeZakljucka->setText(TimeText(time));
    ui.lblZakljucakBr->setText(QString::number(NextEndReport(lastGrupni_)));
    ShowAsReview();
    ShowTab(0);
    forms::Tell(u"End Report is done.\n "_s, forms::Icon::Warning,
                u"End Report "_s + DateText(now.date()) + u' ' + TimeText(time));
}

void frmTrenutnoStanjeKasa::cmdOsvjezi_Click() {
    LoadAmountList();
}

void frmTrenutnoStanjeKasa::cmdHelp_Click() {
    ShowHelp();
}

void frmTrenutnoStanjeKasa::cmdClose_Click() {
    Unload();
}
