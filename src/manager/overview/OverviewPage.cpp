#include "manager/overview/OverviewPage.h"

#include <QDir>
#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSignalBlocker>
#include <QTextDocument>
#include <algorithm>

#include "core/Installation.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "forms/FileDialog.h"
#include "forms/MsgBox.h"
#include "manager/Beside.h"
#include "manager/Texts.h"
#include "output/Folder.h"
#include "store/StorePath.h"
#include "upkeep/goods/GoodsExport.h"
#include "values/Clock.h"
#include "values/DateText.h"
#include "values/FileError.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;
using upkeep::NamedSold;
using values::Money;

namespace manager {

namespace {

constexpr size_t ShownGoods = 10;
constexpr int SoonDays = 14;

const auto StockQuery = u"SELECT ProdCode, ProdDescription FROM Products WHERE Qty > 0"_s;

QString WeekdayName(int weekday) {
    static const char* const names[] = {
        QT_TRANSLATE_NOOP("manager::OverviewPage", "Mon"), QT_TRANSLATE_NOOP("manager::OverviewPage", "Tue"),
        QT_TRANSLATE_NOOP("manager::OverviewPage", "Wed"), QT_TRANSLATE_NOOP("manager::OverviewPage", "Thu"),
        QT_TRANSLATE_NOOP("manager::OverviewPage", "Fri"), QT_TRANSLATE_NOOP("manager::OverviewPage", "Sat"),
        QT_TRANSLATE_NOOP("manager::OverviewPage", "Sun")};
    return OverviewPage::tr(names[weekday - 1]);
}

double Height(Money amount) {
    return std::max(0.0, static_cast<double>(amount.Units()));
}

QString Told(const upkeep::Sold& sold) {
    return OverviewPage::tr("%1 in %n invoice(s)", nullptr, sold.invoices).arg(AmountText(sold.takings));
}

// "12 % more" than before.
QString Against(Money now, Money before) {
    if (before <= Money()) return {};
    const double percent =
        100.0 * static_cast<double>(now.Units() - before.Units()) / static_cast<double>(before.Units());
    const QString size = QString::number(qRound(std::abs(percent)));
    return percent < 0 ? OverviewPage::tr("%1 % less").arg(size) : OverviewPage::tr("%1 % more").arg(size);
}

std::vector<Chart::Figure> FiguresOf(const std::vector<NamedSold>& sold, size_t most = SIZE_MAX) {
    std::vector<Chart::Figure> figures;
    for (size_t i = 0; i < std::min(most, sold.size()); ++i)
        figures.push_back(
            {.name = sold[i].name, .value = Height(sold[i].takings), .told = AmountText(sold[i].takings)});
    return figures;
}

// Those in stock that sold least, nothing first.
std::vector<NamedSold> WorstOf(const upkeep::Overview& overview) {
    QHash<QString, Money> takings;
    for (const NamedSold& product : overview.goods) takings.insert(product.key, product.takings);
    std::vector<NamedSold> worst;
    auto products = MainStore().OpenSnapshot(StockQuery);
    for (auto& product : products)
        worst.push_back({.key = product[0].TextOrEmpty(),
                         .name = product[1].TextOrEmpty(),
                         .takings = takings.value(product[0].TextOrEmpty())});
    std::ranges::stable_sort(worst, {}, &NamedSold::takings);
    if (worst.size() > ShownGoods) worst.resize(ShownGoods);
    return worst;
}

}  // namespace

OverviewPage::OverviewPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    const QString nothing = tr("Nothing was sold on these days.");
    ui.chtDays->SetKind(Chart::Kind::Columns);
    ui.chtHours->SetKind(Chart::Kind::Heat, 24);
    for (Chart* chart : findChildren<Chart*>()) {
        chart->SetEmptyText(nothing);
        connect(chart, &Chart::Chosen, this, [this, chart](int figure) { Run([&] { ShowBehind(chart, figure); }); });
    }
    ui.chtWorst->SetEmptyText(tr("No goods in stock were sold on these days."));
    ui.chtRunning->SetEmptyText(
        tr("At the pace of the last four weeks nothing runs out within %1 days.").arg(SoonDays));
    ui.lstFigures->SetColumns(
        {{tr("What"), Qt::AlignLeft, 200}, {tr("Which"), Qt::AlignLeft, -1}, {tr("Figure"), Qt::AlignRight, 260}});
    for (const auto& [name, days] :
         {std::pair{tr("Today"), 1}, std::pair{tr("The last 7 days"), 7}, std::pair{tr("This month"), 0},
          std::pair{tr("The last 12 months"), 365}, std::pair{tr("All"), -1}, std::pair{tr("Own days"), -2}})
        ui.cboRange->addItem(name, days);
    ui.cboRange->setCurrentIndex(2);
    OnChange(ui.cboRange, &OverviewPage::cboRange_Choice);
    On(ui.cmdLook, &OverviewPage::cmdLook_Click);
    On(ui.cmdTable, &OverviewPage::cmdTable_Click);
    On(ui.cmdPrint, &OverviewPage::cmdPrint_Click);
    On(ui.cmdSave, &OverviewPage::cmdSave_Click);
}

void OverviewPage::Form_Load() {
    cboRange_Choice();
}

void OverviewPage::cboRange_Choice() {
    const QDate today = values::Today();
    const int days = ui.cboRange->currentData().toInt();
    if (days == -2) return ui.dtpFrom->setFocus();
    QDate from = days > 0 ? today.addDays(1 - days) : QDate(today.year(), today.month(), 1);
    if (days == -1) {
        auto first = MainStore().OpenSnapshot(u"SELECT Min(DateSold) AS D FROM Invoices"_s);
        if (!first[0].IsNull()) from = first[0].Get().ToDate();
    }
    ui.dtpFrom->setDate(from);
    ui.dtpTo->setDate(today);
    cmdLook_Click();
}

// A thread reads by a connection of its own, so that the page stays where it is while ten years are summed up.
void OverviewPage::cmdLook_Click() {
    const QDate from = ui.dtpFrom->date(), to = ui.dtpTo->date(), today = values::Today();
    if (from > to) return forms::Inform(tr("The first day lies behind the last."), Caption());
    try {
        upkeep::Overview overview;
        RunBeside(this, tr("The sales are summed up."), [&](const Progress& progress) {
            const auto main = store::Database::Open(store::MainPlace(output::ProgramFolder()), store::MainSchema());
            overview = upkeep::ReadOverview(*main, from, to, [&](int done, int all) {
                return progress(tr("%1 of %2 days are summed up.").arg(QString::number(done), QString::number(all)));
            });
        });
        overview_ = std::move(overview);
    } catch (const store::StoreError& error) {
        if (error.Number() != store::Cancelled) throw;
        return;
    }
    today_ = upkeep::ReadTodaysFigures(MainStore(), today);
    running_ = upkeep::ReadRunningOut(MainStore(), today, SoonDays);
    worst_ = WorstOf(overview_);
    ShowAll();
}

void OverviewPage::ShowAll() {
    ShowTiles();
    ShowDaysAndHours();
    ShowGoods();
    ShowTable();
}

void OverviewPage::ShowTiles() {
    const QString& currency = TheSettings.Currency;
    const auto amount = [&](Money sum) { return AmountText(sum) + u' ' + currency; };
    ui.lblToday->setText(amount(today_.today.takings));
    const QString week = Against(today_.today.takings, today_.weekAgo.takings);
    ui.lblTodayBefore->setText(tr("%1 a week ago, %2 in the mean of four weeks")
                                   .arg(AmountText(today_.weekAgo.takings), AmountText(today_.meanOfFour)) +
                               (week.isEmpty() ? QString() : u"; "_s + week));
    ui.lblMonth->setText(amount(today_.month.takings));
    const QString month = Against(today_.month.takings, today_.monthBefore.takings);
    ui.lblMonthBefore->setText(tr("%1 on the same days of the last month").arg(AmountText(today_.monthBefore.takings)) +
                               (month.isEmpty() ? QString() : u"; "_s + month));
    ui.lblRange->setText(amount(overview_.sold.takings));
    const int invoices = overview_.sold.invoices;
    const Money mean = invoices == 0 ? Money() : Money::FromUnits(overview_.sold.takings.Units() / invoices);
    ui.lblRangeBefore->setText(tr("%n invoice(s), %1 each", nullptr, invoices).arg(AmountText(mean)));
}

void OverviewPage::ShowDaysAndHours() {
    std::vector<Chart::Figure> days;
    for (size_t i = 0; i < overview_.days.size(); ++i) {
        const auto& [day, sold] = overview_.days[i];
        days.push_back({.name = values::Format(day, u"dd.mm."),
                        .value = Height(sold.takings),
                        .told = Told(sold),
                        .before = i < 7 ? -1 : Height(overview_.days[i - 7].sold.takings)});
    }
    ui.chtDays->SetFigures(std::move(days));
    QStringList rows, columns;
    std::vector<Chart::Figure> hours;
    for (int hour = 0; hour < 24; ++hour) columns << QString::number(hour);
    for (int weekday = 1; weekday <= 7; ++weekday) {
        rows << WeekdayName(weekday);
        for (int hour = 0; hour < 24; ++hour) {
            const upkeep::Sold& sold = overview_.hours[static_cast<size_t>(weekday - 1)][static_cast<size_t>(hour)];
            hours.push_back({.name = tr("%1, %2 to %3 o'clock")
                                         .arg(WeekdayName(weekday), QString::number(hour), QString::number(hour + 1)),
                             .value = Height(sold.takings),
                             .told = Told(sold)});
        }
    }
    ui.chtHours->SetHeads(rows, columns);
    ui.chtHours->SetFigures(std::move(hours));
}

void OverviewPage::ShowGoods() {
    ui.chtBest->SetFigures(FiguresOf(overview_.goods, ShownGoods));
    ui.chtWorst->SetFigures(FiguresOf(worst_));
    ui.chtGroups->SetFigures(FiguresOf(overview_.groups, ShownGoods));
    ui.chtCashiers->SetFigures(FiguresOf(overview_.cashiers, ShownGoods));
    std::vector<Chart::Figure> taxes;
    for (const NamedSold& tax : overview_.taxes)
        taxes.push_back({.name = tax.name,
                         .value = Height(tax.takings),
                         .told = tr("%1, tax %2").arg(AmountText(tax.takings), AmountText(tax.tax))});
    ui.chtTaxes->SetFigures(std::move(taxes));
    std::vector<Chart::Figure> running;
    for (const upkeep::RunningOut& product : running_)
        if (running.size() < ShownGoods)
            running.push_back(
                {.name = product.name,
                 .value = 1.0 + product.days,
                 .told = tr("%n day(s), %1 left", nullptr, product.days).arg(values::Format(product.stock, u"0.##"))});
    ui.chtRunning->SetFigures(std::move(running));
}

QList<QStringList> OverviewPage::TableOfFigures() const {
    QList<QStringList> table{{tr("Today"), {}, AmountText(today_.today.takings)},
                             {tr("A week ago"), {}, AmountText(today_.weekAgo.takings)},
                             {tr("Mean of four weeks"), {}, AmountText(today_.meanOfFour)},
                             {tr("This month"), {}, AmountText(today_.month.takings)},
                             {tr("The same days of the last month"), {}, AmountText(today_.monthBefore.takings)},
                             {tr("In the days chosen"), {}, Told(overview_.sold)}};
    for (const auto& [day, sold] : overview_.days)
        if (sold.invoices > 0) table << QStringList{tr("Day"), values::DateText(day), Told(sold)};
    const std::pair<QString, const Chart*> charts[] = {{tr("Hour"), ui.chtHours},        {tr("Best goods"), ui.chtBest},
                                                       {tr("Worst goods"), ui.chtWorst}, {tr("Group"), ui.chtGroups},
                                                       {tr("Cashier"), ui.chtCashiers},  {tr("Tax"), ui.chtTaxes},
                                                       {tr("Runs out"), ui.chtRunning}};
    for (const auto& [what, chart] : charts)
        for (int i = 0; i < chart->Count(); ++i)
            if (chart->At(i).value > 0 || chart == ui.chtWorst)
                table << QStringList{what, chart->At(i).name, chart->At(i).told};
    return table;
}

void OverviewPage::ShowTable() {
    ui.lstFigures->Clear();
    ui.lstFigures->BeginFill();
    for (const QStringList& line : TableOfFigures()) ui.lstFigures->Add(line);
    ui.lstFigures->EndFill();
}

void OverviewPage::cmdTable_Click() {
    ui.stkFigures->setCurrentWidget(ui.cmdTable->isChecked() ? ui.pagTable : ui.pagCharts);
}

void OverviewPage::ShowBehind(Chart* chart, int figure) {
    InvoicesBehind behind{
        .what = chart->At(figure).name + u": "_s + chart->At(figure).told, .from = overview_.from, .to = overview_.to};
    const auto linesOf = [&](const auto& isMeant) {
        behind.byNumber = true;
        for (const upkeep::LineOfInvoice& line : upkeep::ReadLines(MainStore(), behind.from, behind.to))
            if (isMeant(line)) behind.numbers << line.invoice;
    };
    const auto place = static_cast<size_t>(figure);
    if (chart == ui.chtDays) behind.from = behind.to = overview_.days[place].day;
    if (chart == ui.chtHours) {
        behind.weekday = 1 + figure / 24;
        behind.hour = figure % 24;
    }
    if (chart == ui.chtCashiers) behind.cashier = overview_.cashiers[place].key;
    if (chart == ui.chtTaxes) linesOf([&](const auto& line) { return line.tax == overview_.taxes[place].key; });
    if (chart == ui.chtBest) linesOf([&](const auto& line) { return line.code == overview_.goods[place].key; });
    if (chart == ui.chtWorst) linesOf([&](const auto& line) { return line.code == worst_[place].key; });
    if (chart == ui.chtRunning) linesOf([&](const auto& line) { return line.code == running_[place].code; });
    if (chart == ui.chtGroups) {
        QSet<QString> codes;
        const int tab = overview_.groups[place].key.toInt();
        auto products = MainStore().OpenSnapshot(u"SELECT ProdCode, Tab FROM Products"_s);
        for (auto& product : products) {
            const qint64 at = product[1].IsNull() ? -1 : product[1].Whole();
            if ((at < 0 ? -1 : static_cast<int>(at) / store::PlacesPerTab) == tab) codes << product[0].TextOrEmpty();
        }
        linesOf([&](const auto& line) { return codes.contains(line.code); });
    }
    InvoicesForm(behind).ShowModal();
}

QString OverviewPage::ReportAsHtml() const {
    QString rows;
    for (const QStringList& line : TableOfFigures())
        rows += u"<tr><td>%1</td><td>%2</td><td align=\"right\">%3</td></tr>"_s.arg(
            line[0].toHtmlEscaped(), line[1].toHtmlEscaped(), line[2].toHtmlEscaped());
    return u"<h2>%1</h2><p>%2</p><table width=\"100%\" cellspacing=\"0\" cellpadding=\"2\">%3</table>"_s.arg(
        TheInstallation.heading.NazivFirme.toHtmlEscaped(),
        tr("%1 to %2").arg(values::DateText(overview_.from), values::DateText(overview_.to)).toHtmlEscaped(), rows);
}

void OverviewPage::cmdPrint_Click() {
    QPrinter printer(QPrinter::HighResolution);
    if (QPrinterInfo::defaultPrinterName().isEmpty()) {
        const QDir folder(output::InProgramFolder(u"printouts"_s));
        folder.mkpath(u"."_s);
        printer.setOutputFileName(folder.filePath(values::Now().toString(u"'overview-'yyyyMMdd-HHmmss'.pdf'"_s)));
    }
    QTextDocument document;
    document.setHtml(ReportAsHtml());
    document.print(&printer);
}

void OverviewPage::cmdSave_Click() {
    const QString path = forms::AskSaveName(this, tr("Save the overview"), tr("PDF (*.pdf);;Table (*.csv)"));
    if (path.isEmpty()) return;
    if (!path.endsWith(u".csv", Qt::CaseInsensitive)) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path.endsWith(u".pdf", Qt::CaseInsensitive) ? path : path + u".pdf"_s);
        QTextDocument document;
        document.setHtml(ReportAsHtml());
        return document.print(&printer);
    }
    QByteArray lines = "\xEF\xBB\xBF";
    for (const QStringList& line : TableOfFigures()) lines += upkeep::CsvLine(line);
    values::SaveFile(path, lines);
}

}  // namespace manager
