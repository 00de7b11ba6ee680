#include "reports/ListReport.h"

#include <QLabel>
#include <QScopedValueRollback>

#include "core/FillList.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "forms/FileDialog.h"
#include "forms/LongWork.h"
#include "forms/MsgBox.h"
#include "forms/Scrollable.h"
#include "output/OutputGuard.h"
#include "receipts/InvoiceOutput.h"
#include "reports/ReportFile.h"
#include "reports/ReportLines.h"
#include "values/Format.h"
#include "values/Locale.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::Format;

namespace {

constexpr int SumBoxWidth = 110;

forms::ListColumn ListColumnOf(const ReportColumn& column) {
    return {column.heading, column.look == Look::Text ? Qt::AlignLeft : Qt::AlignRight, column.width};
}

std::vector<ListCell> CellsOf(const std::vector<ReportColumn>& columns) {
    std::vector<ListCell> cells;
    cells.reserve(columns.size());
    for (const ReportColumn& column : columns)
        cells.push_back({column.field, column.look == Look::Amount ? u"0.00"_s : QString()});
    return cells;
}

}  // namespace

ListReport::ListReport(ReportFacts facts) : facts_(std::move(facts)) {
    setObjectName(facts_.name);
    ui.setupUi(this);
    forms::MakeScrollable(ui.panelPeriod);
    setWindowTitle(facts_.caption);
    std::vector<forms::ListColumn> columns;
    for (const ReportColumn& column : facts_.columns) columns.push_back(ListColumnOf(column));
    ui.lv1->SetColumns(std::move(columns));
    AddSumBoxes();
    ui.mv1->setFirstDayOfWeek(values::UserLocale().firstDayOfWeek());
    HelpAndClose(ui.cmdHelp, ui.cmdClose, {Qt::Key_Escape, Qt::Key_F12});
}

void ListReport::AddSumBoxes() {
    ui.panelSums->setVisible(!facts_.sums.empty());
    for (const ReportSum& sum : facts_.sums) {
        auto* caption = new QLabel(sum.caption, ui.panelSums);
        caption->setProperty("role", u"muted"_s);
        auto* box = new QLineEdit(ui.panelSums);
        box->setObjectName(sum.box);
        box->setReadOnly(true);
        box->setFocusPolicy(Qt::NoFocus);
        box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        box->setMinimumWidth(SumBoxWidth);
        box->setMaximumWidth(2 * SumBoxWidth);
        ui.layoutSums->addWidget(caption);
        ui.layoutSums->addWidget(box);
        ShrinkFigures({box});
    }
}

void ListReport::PrintAndSave() {
    AddButton(u"cmdPrint"_s, tr("F5-Print"), Qt::Key_F5, &ListReport::cmdPrint_Click);
    AddButton(u"cmdSacuvaj"_s, tr("F4-Save"), Qt::Key_F4, &ListReport::cmdSacuvaj_Click);
}

// The first one is what the report is opened for.
QPushButton* ListReport::AddButton(const QString& name, const QString& caption, Qt::Key key) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    const int others = ui.layoutWork->count();
    if (others == 0) button->setProperty("role", u"main"_s);
    setTabOrder(others == 0 ? ui.lv1 : ui.layoutWork->itemAt(others - 1)->widget(), button);
    setTabOrder(button, ui.cmdHelp);
    setTabOrder(ui.cmdHelp, ui.cmdClose);
    ui.layoutWork->addWidget(button);
    if (key != Qt::Key_unknown) FunctionKeys({{key, button}});
    return button;
}

QLineEdit* ListReport::SumBox(const ReportSum& sum) const {
    return forms::Control<QLineEdit>(ui.panelSums, sum.box);
}

// A report that is left or fails in the middle shows nothing rather than a part, and must not look like days without
// sales.
bool ListReport::OpenAndSum(const QString& query) {
    forms::LongWork work(this);
    const QScopedValueRollback working(work_, &work);
    const store::Watch watch(MainStore(), [&work] { return work.GoesOn(); });
    try {
        ListRows(Read(query));
        SumList();
        return true;
    } catch (const values::Error& error) {
        ui.lv1->Clear();
        SumList();
        ShowTitle({}, {});
        if (error.Number() != store::Cancelled) throw;
        return false;
    }
}

void ListReport::ShowTitle(const QString& shown, const QString& printed) {
    ui.lblNaslov->setText(shown);
    printedTitle_ = printed;
}

store::Listing ListReport::Read(const QString& query) {
    return MainStore().ReadListing(query);
}

void ListReport::ListRows(store::Listing rows) {
    FillList(*ui.lv1, std::move(rows), CellsOf(facts_.columns), forms::ListView::Selects::Nothing);
}

// Here the amounts of all rows become texts, which takes its time in a long list.
values::Money ListReport::SumOf(int column) const {
    values::Money sum;
    for (int row = 0; row < ui.lv1->Count(); ++row) {
        if (work_ && !work_->GoesOn()) throw store::StoreError(store::Cancelled, u"The report was left."_s);
        const QString amount = ui.lv1->Text(row, column);
        if (!amount.isEmpty()) sum += values::CMoney(amount);
    }
    return sum;
}

void ListReport::SumList() {
    const bool isEmpty = ui.lv1->Count() == 0;
    for (const ReportSum& sum : facts_.sums) {
        if (isEmpty)
            SumBox(sum)->setText(facts_.emptySum);
        else if (sum.column != OwnFigure)
            SumBox(sum)->setText(Format(SumOf(sum.column), u"0.00"));
    }
}

bool ListReport::HasItems() const {
    if (ui.lv1->Count() > 0) return true;
    forms::Inform(facts_.emptyList, mdiORVA::Window().Caption());
    return false;
}

void ListReport::PrintReport(const QString& mode) {
    QStringList sums;
    for (const ReportSum& sum : facts_.sums) sums << SumBox(sum)->text();
    for (const QString& line : ReportLines(Layout(), printedTitle_, *ui.lv1, sums)) PrintToChannel(mode, line);
}

void ListReport::cmdPrint_Click() {
    if (!HasItems()) return;
    const QString mode = TheSettings.PrinterZaIzvjestaj;
    const output::OutputGuard guard;
    if (mode == u"1" || mode == u"2") {
        OpenPrinterPort(mode);
        PrintReport(mode);
        FeedBlankLines(TheSettings.PraznihLinijaPoslijeRacuna);
        output::Channel1().Close();
    }
    if (mode == u"3") {
        SetPageFont();
        PrintReport(mode);
        output::ThePagePrinter().EndJob();
    }
}

// A save that fails says nothing.
void ListReport::cmdSacuvaj_Click() {
    if (!HasItems()) return;
    const QString path = forms::AskSaveName(this, facts_.saveTitle, tr("Report (*.txt)"));
    if (path.isEmpty()) return;
    PassOverErrors([&] { SaveReportFile(path, [this] { PrintReport(u"1"_s); }); });
}
