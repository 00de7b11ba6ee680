#include "manager/overview/OverviewPage.h"

#include <QButtonGroup>
#include <QEvent>

#include "core/Installation.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "forms/LongWork.h"
#include "forms/MsgBox.h"
#include "forms/Scrollable.h"
#include "manager/SaveAs.h"
#include "manager/Texts.h"
#include "manager/overview/InvoicesView.h"
#include "manager/overview/OverviewPaper.h"
#include "output/Channel.h"
#include "values/Clock.h"
#include "values/Csv.h"
#include "values/DateText.h"
#include "values/FileError.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using upkeep::Days;
using values::Money;

namespace manager {

namespace {

constexpr auto AtOnce = 250ms;
constexpr qint64 Fresh = 30'000;  // milliseconds for which figures stand when the page comes to the front again
constexpr qint64 DaysOfWeek = 7;

void ShowText(QLabel* label, const QString& text) {
    label->setText(text);
    label->setVisible(!text.isEmpty());
}

}  // namespace

OverviewPage::OverviewPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    PrepareCharts();
    forms::MakeScrollable(ui.panelFigures);
    ui.panelFigures->installEventFilter(this);
    auto* ranges = new QButtonGroup(this);
    for (QPushButton* range : {ui.cmdToday, ui.cmdWeek, ui.cmdMonth, ui.cmdYear, ui.cmdAll, ui.cmdOwn}) {
        ranges->addButton(range);
        On(range, &OverviewPage::Range_Click);
    }
    On(ui.cmdShow, &OverviewPage::cmdShow_Click);
    On(ui.cmdTable, &OverviewPage::cmdTable_Click);
    On(ui.cmdPrint, &OverviewPage::cmdPrint_Click);
    On(ui.cmdPdf, &OverviewPage::cmdPdf_Click);
    On(ui.cmdCsv, &OverviewPage::cmdCsv_Click);
    On(ui.cmdStop, &OverviewPage::cmdStop_Click);
    On(ui.optTakings, &OverviewPage::optBy_Click);
    On(ui.optPieces, &OverviewPage::optBy_Click);
    FunctionKeys({{Qt::Key_Escape, ui.cmdStop}});
    EnterMovesOn({ui.dtpFirst, ui.dtpLast});
    connect(&run_, &OverviewRun::Told, this,
            [this](const upkeep::Overview& overview) { Run([&] { Show(overview); }); });
    connect(&run_, &OverviewRun::Ended, this, [this](const QString& fault) { ShowState(fault); });
}

void OverviewPage::PrepareCharts() {
    takings_ = ui.panelTakings->Hold<ColumnChart>(u"Takings"_s);
    byHour_ = ui.panelHours->Hold<HeatMap>(u"Hours"_s);
    best_ = ui.panelBest->Hold<RankList>(u"Best"_s);
    idle_ = ui.panelIdle->Hold<RankList>(u"Idle"_s);
    runningOut_ = ui.panelRunningOut->Hold<RankList>(u"RunningOut"_s);
    groups_ = ui.panelGroups->Hold<RankList>(u"Groups"_s);
    cashiers_ = ui.panelCashiers->Hold<RankList>(u"Cashiers"_s);
    taxes_ = ui.panelTaxes->Hold<RankList>(u"Taxes"_s);
    for (ChartPanel* panel : Panels()) panel->Held().SetEmptyText(tr("Nothing was sold on these days."));
    idle_->SetEmptyText(tr("No goods are in stock. Enter what you have on the page of the goods."));
    runningOut_->SetEmptyText(tr("Nothing was sold in the last four weeks, so nothing runs out."));
    PrepareChoices();
}

// Which invoices stand behind the marks of each chart.
void OverviewPage::PrepareChoices() {
    using upkeep::InvoicesWish;
    const auto behind = [this](Chart* chart, auto wishOf) {
        connect(chart, &Chart::Chosen, this, [this, chart, wishOf](int mark) {
            Run([&] { ShowInvoices(chart->MarkText(mark), wishOf(static_cast<size_t>(mark))); });
        });
    };
    behind(takings_, [this](size_t mark) { return BehindSpan(static_cast<int>(mark)); });
    behind(byHour_, [this](size_t mark) {
        const int cell = static_cast<int>(mark);
        return InvoicesWish{
            .days = shown_.days, .hour = hours_.first + byHour_->ColumnOf(cell), .weekday = byHour_->RowOf(cell) + 1};
    });
    behind(best_, [this](size_t mark) {
        return InvoicesWish{.days = shown_.days, .goods = upkeep::Best(shown_.goods, ChosenBy(), mark + 1).back().code};
    });
    behind(idle_, [this](size_t mark) {
        return InvoicesWish{.days = shown_.days, .goods = upkeep::Least(shown_.idle, ChosenBy(), mark + 1).back().code};
    });
    behind(runningOut_, [this](size_t mark) {
        return InvoicesWish{.days = upkeep::DaysOfPace(values::Today()), .taken = shown_.runningOut[mark].goods.code};
    });
    behind(groups_, [this](size_t mark) { return InvoicesWish{.days = shown_.days, .group = shown_.groups[mark].id}; });
    behind(cashiers_,
           [this](size_t mark) { return InvoicesWish{.days = shown_.days, .cashierID = shown_.cashiers[mark].id}; });
    behind(taxes_, [this](size_t mark) { return InvoicesWish{.days = shown_.days, .taxID = shown_.taxes[mark].id}; });
}

QList<ChartPanel*> OverviewPage::Panels() const {
    return {ui.panelTakings,    ui.panelHours,  ui.panelBest,     ui.panelIdle,
            ui.panelRunningOut, ui.panelGroups, ui.panelCashiers, ui.panelTaxes};
}

void OverviewPage::Form_Load() {
    const QDate today = values::Today();
    ui.dtpFirst->setDate(upkeep::DaysBefore(upkeep::MonthOf(today)).first);
    ui.dtpLast->setDate(today);
    ui.cmdMonth->setChecked(true);
    ui.panelDays->hide();
    ui.panelState->hide();
}

void OverviewPage::Form_Activate() {
    if (run_.IsRunning() || (sinceRead_.isValid() && sinceRead_.elapsed() < Fresh)) return;
    Read();
}

// The thread must not outlive the program.
bool OverviewPage::Form_Unload() {
    run_.Stop();
    return true;
}

Days OverviewPage::ChosenDays() const {
    const QDate today = values::Today();
    if (ui.cmdToday->isChecked()) return {today, today};
    if (ui.cmdWeek->isChecked()) return {today.addDays(1 - DaysOfWeek), today};
    if (ui.cmdMonth->isChecked()) return upkeep::MonthOf(today);
    if (ui.cmdYear->isChecked()) return {{today.year(), 1, 1}, {today.year(), 12, 31}};
    if (ui.cmdOwn->isChecked()) return {ui.dtpFirst->date(), ui.dtpLast->date()};
    return {};
}

void OverviewPage::Range_Click() {
    ui.panelDays->setVisible(ui.cmdOwn->isChecked());
    if (ui.cmdOwn->isChecked()) ui.dtpFirst->setFocus();
    Read();
}

void OverviewPage::cmdShow_Click() {
    if (ui.dtpFirst->date() > ui.dtpLast->date()) {
        forms::Inform(tr("The first day is after the last one."), Caption());
        return ui.dtpFirst->setFocus();
    }
    Read();
}

void OverviewPage::Read() {
    const Days days = ChosenDays();
    if (!days.IsValid() && !ui.cmdAll->isChecked()) return;
    run_.Begin({values::Today(), days, tr("Not on the touch table")});
    run_.WaitFor(AtOnce);
    if (!run_.IsRunning()) return;
    ui.lblState->setText(tr("Reading ..."));
    ui.prgRead->setRange(0, 0);
    ui.prgRead->show();
    ui.cmdStop->show();
    ui.panelState->show();
}

void OverviewPage::Show(const upkeep::Overview& overview) {
    shown_ = overview;
    spans_ = SpansOf(shown_.days);
    hours_ = HoursOf(shown_);
    ShowBoxes();
    takings_->Show(TakingsContent(shown_, spans_));
    byHour_->Show(HoursContent(shown_, hours_));
    runningOut_->Show(RunningOutContent(shown_.runningOut));
    groups_->Show(NamedContent(tr("Group"), shown_.groups, false));
    cashiers_->Show(NamedContent(tr("Cashier"), shown_.cashiers, true));
    taxes_->Show(TaxesContent(shown_.taxes));
    ShowGoods();
    for (ChartPanel* panel : Panels()) panel->FiguresChanged();
    ui.prgRead->setRange(0, static_cast<int>(shown_.days.Count()));
    ui.prgRead->setValue(static_cast<int>(shown_.daysRead));
    ui.lblState->setText(
        tr("Reading back from %1 ...").arg(values::DateText(shown_.days.last.addDays(1 - shown_.daysRead))));
}

void OverviewPage::ShowBoxes() {
    const auto& [today, weekBefore, mean, weekdays, month, monthBefore, toDate] = shown_.standing;
    const QDate day = values::Today();
    const QString weekday = values::UserLocale().standaloneDayName(day.dayOfWeek());
    const auto compared = [](const QString& what, Money now, Money before) {
        const QString change = ChangeText(now, before);
        return change.isEmpty() ? tr("%1: %2").arg(what, AmountText(before))
                                : tr("%1: %2  (%3)").arg(what, AmountText(before), change);
    };
    const Money takenToday = today.amounts.total;
    ui.lblToday->setText(tr("Today, %1 %2").arg(weekday, values::DateText(day)));
    ui.lblTodaySum->setText(AmountText(takenToday));
    ui.lblTodayNote1->setText(compared(tr("A week ago"), takenToday, weekBefore.amounts.total));
    ShowText(ui.lblTodayNote2,
             weekdays < 2 ? QString() : compared(tr("Mean of the last %1").arg(weekdays), takenToday, mean));

    const Days before = upkeep::DaysBefore(upkeep::MonthOf(day));
    const QDate sameDay = std::min(before.first.addDays(day.day() - 1), before.last);
    ui.lblMonth->setText(MonthText(day));
    ui.lblMonthSum->setText(AmountText(month.amounts.total));
    ui.lblMonthNote1->setText(
        compared(tr("Until %1").arg(values::DateText(sameDay)), month.amounts.total, toDate.amounts.total));
    ui.lblMonthNote2->setText(tr("%1: %2").arg(MonthText(before.first), AmountText(monthBefore.amounts.total)));

    const upkeep::Takings& chosen = shown_.takings;
    ui.lblDays->setText(tr("Chosen: %1").arg(DaysText(shown_.days)));
    ui.lblDaysSum->setText(AmountText(chosen.amounts.total));
    const Money meanInvoice =
        chosen.invoices == 0 ? Money() : Money::FromUnits(chosen.amounts.total.Units() / chosen.invoices);
    ui.lblDaysNote1->setText(chosen.invoices == 1
                                 ? tr("1 invoice")
                                 : tr("%1 invoices, %2 each").arg(chosen.invoices).arg(AmountText(meanInvoice)));
    upkeep::Takings compare;
    for (const auto& [date, takings] : shown_.before) compare += takings;
    ShowText(ui.lblDaysNote2, shown_.before.empty()
                                  ? QString()
                                  : compared(DaysBeforeText(shown_.days), chosen.amounts.total, compare.amounts.total));
}

upkeep::By OverviewPage::ChosenBy() const {
    return ui.optPieces->isChecked() ? upkeep::By::Pieces : upkeep::By::Total;
}

void OverviewPage::ShowGoods() {
    const upkeep::By by = ChosenBy();
    best_->Show(GoodsContent(upkeep::Best(shown_.goods, by, shown_.goods.size()), by));
    idle_->Show(GoodsContent(upkeep::Least(shown_.idle, by, shown_.idle.size()), by));
}

void OverviewPage::optBy_Click() {
    ShowGoods();
    ui.panelBest->FiguresChanged();
    ui.panelIdle->FiguresChanged();
}

void OverviewPage::ShowState(const QString& fault) {
    sinceRead_.start();
    ui.prgRead->hide();
    ui.cmdStop->hide();
    ui.panelState->setVisible(!fault.isEmpty());
    ui.lblState->setText(fault);
}

// Also the Esc key; what was read stays on the page.
void OverviewPage::cmdStop_Click() {
    if (!run_.IsRunning()) return;
    run_.Stop();
    const QDate back = shown_.days.last.addDays(1 - shown_.daysRead);
    ShowState(shown_.daysRead > 0 ? tr("Read back to %1; what is older was left out.").arg(values::DateText(back))
                                  : tr("The reading was left."));
}

void OverviewPage::cmdTable_Click() {
    const bool asTables = ui.cmdTable->isChecked();
    Arrange(asTables);
    for (ChartPanel* panel : Panels()) panel->ShowAsTable(asTables);
}

bool OverviewPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui.panelFigures && event->type() == QEvent::Resize) FitCharts();
    return Page::eventFilter(watched, event);
}

// As high as leaves room for the goods below, so that as much as can be is seen without scrolling.
void OverviewPage::FitCharts() {
    constexpr int least = 174;
    constexpr int most = 236;
    const int others = ui.panelToday->sizeHint().height() + ui.layoutGoods->sizeHint().height() +
                       ui.panelBest->sizeHint().height() + 3 * ui.layoutFigures->verticalSpacing();
    const int height = std::clamp(ui.panelFigures->height() - others, least, most);
    for (ChartPanel* panel : {ui.panelTakings, ui.panelHours}) panel->SetLeastHeight(height);
}

// Tables stand one below the other, since their columns need the whole width.
void OverviewPage::Arrange(bool asTables) {
    struct Place {
        QWidget* panel;
        int row, column, columns;
    };
    constexpr int all = 6;
    const Place places[] = {{ui.panelTakings, 1, 0, 4},  {ui.panelHours, 1, 4, 2},      {ui.panelBest, 3, 0, 2},
                            {ui.panelIdle, 3, 2, 2},     {ui.panelRunningOut, 3, 4, 2}, {ui.panelGroups, 4, 0, 2},
                            {ui.panelCashiers, 4, 2, 2}, {ui.panelTaxes, 4, 4, 2}};
    for (const Place& place : places) ui.layoutFigures->removeWidget(place.panel);
    ui.layoutFigures->removeItem(ui.layoutGoods);
    int row = 1;
    for (const Place& place : places) {
        if (place.panel == ui.panelBest) ui.layoutFigures->addLayout(ui.layoutGoods, asTables ? row++ : 2, 0, 1, all);
        if (asTables)
            ui.layoutFigures->addWidget(place.panel, row++, 0, 1, all);
        else
            ui.layoutFigures->addWidget(place.panel, place.row, place.column, 1, place.columns);
    }
}

upkeep::InvoicesWish OverviewPage::BehindSpan(int mark) const {
    const bool isByHour = spans_.front().kind == Span::Kind::Hour;
    const Span& span = spans_[static_cast<size_t>(isByHour ? hours_.first + mark : mark)];
    upkeep::InvoicesWish wish{.days = span.days};
    if (isByHour) wish.hour = span.hour;
    return wish;
}

void OverviewPage::ShowInvoices(const QString& what, const upkeep::InvoicesWish& wish) {
    std::vector<upkeep::ListedInvoice> invoices;
    try {
        forms::LongWork wait(this);
        const store::Watch watch(MainStore(), [&wait] { return wait.GoesOn(); });
        invoices = upkeep::ReadInvoices(MainStore(), wish);
    } catch (const store::StoreError& error) {
        if (error.Number() == store::Cancelled) return;
        throw;
    }
    InvoicesView(what, std::move(invoices)).ShowModal();
}

OverviewPaper OverviewPage::Paper() const {
    const auto notes = [](std::initializer_list<const QLabel*> labels) {
        QStringList texts;
        for (const QLabel* label : labels)
            if (!label->isHidden()) texts << label->text();
        return texts;
    };
    constexpr double wide = 230;
    constexpr double ranks = 175;
    OverviewPaper paper{
        .title = TheInstallation.heading.NazivFirme,
        .subtitle = tr("Overview of %1, printed on %2, amounts in %3")
                        .arg(DaysText(shown_.days), values::DateText(values::Today()), TheSettings.Currency),
        .boxes = {{ui.lblToday->text(), ui.lblTodaySum->text(), notes({ui.lblTodayNote1, ui.lblTodayNote2})},
                  {ui.lblMonth->text(), ui.lblMonthSum->text(), notes({ui.lblMonthNote1, ui.lblMonthNote2})},
                  {ui.lblDays->text(), ui.lblDaysSum->text(), notes({ui.lblDaysNote1, ui.lblDaysNote2})}},
        .plates = {}};
    for (const ChartPanel* panel : Panels()) {
        const bool isWide = panel == ui.panelTakings || panel == ui.panelHours;
        paper.plates.push_back({panel->Heading(), &panel->Held(), isWide ? wide : ranks, isWide ? 3 : 1});
    }
    return paper;
}

void OverviewPage::cmdPrint_Click() {
    try {
        output::PageDevice pages(output::PageDevice::UsualPaper());
        Paper().PaintOn(pages);
        pages.End();
    } catch (const output::OutputError& error) {
        // Of a printer that fails the owner hears, and the program goes on.
        return forms::Tell(error.Description(), forms::Icon::Warning, Caption());
    }
    forms::Inform(tr("The overview is printed."), Caption());
}

void OverviewPage::cmdPdf_Click() {
    const QString path = AskSaveAs(this, tr("Save the overview"), tr("Document (*.pdf)"), {u".pdf"_s});
    if (path.isEmpty()) return;
    try {
        output::PageDevice pages(path, QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                                   QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter));
        Paper().PaintOn(pages);
        pages.End();
    } catch (const output::OutputError& error) {
        return forms::Tell(error.Description(), forms::Icon::Warning, Caption());
    }
    forms::Inform(tr("Saved as %1.").arg(path), Caption());
}

void OverviewPage::cmdCsv_Click() {
    const QString path = AskSaveAs(this, tr("Save the figures"), tr("Table (*.csv)"), {u".csv"_s});
    if (path.isEmpty()) return;
    QList<QList<values::Value>> rows{{tr("Overview"), DaysText(shown_.days)},
                                     {tr("Taken"), shown_.takings.amounts.total},
                                     {tr("Tax in it"), shown_.takings.amounts.tax},
                                     {tr("Invoices"), shown_.takings.invoices}};
    for (const ChartPanel* panel : Panels()) {
        const ChartTable table = panel->Held().Table();
        rows << QList<values::Value>() << QList<values::Value>{panel->Heading()};
        rows << QList<values::Value>(table.headings.begin(), table.headings.end());
        for (const auto& row : table.rows) rows << QList<values::Value>(row.begin(), row.end());
    }
    values::SaveFile(path, values::CsvText(rows));
    forms::Inform(tr("Saved as %1.").arg(path), Caption());
}

}  // namespace manager
