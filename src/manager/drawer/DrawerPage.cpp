#include "manager/drawer/DrawerPage.h"

#include <QFile>
#include <QLabel>
#include <QSignalBlocker>
#include <QTabBar>

#include "core/Session.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "forms/Theme.h"
#include "manager/Texts.h"
#include "manager/drawer/DrawerText.h"
#include "manager/drawer/NotesAndCoins.h"
#include "manager/overview/OverviewCharts.h"
#include "output/Channel.h"
#include "output/Folder.h"
#include "output/PagePrinter.h"
#include "values/Clock.h"
#include "values/DateText.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace manager {

namespace {

constexpr int PiecesWidth = 72;
constexpr int SumWidth = 72;
constexpr int BetweenHalves = 24;
constexpr int SecondHalf = 4;  // its first column
constexpr qint64 MostPieces = 1'000'000;
constexpr qsizetype EndReportsShown = 10;

// An empty box counts nothing; -1 for what is no number of pieces.
qint64 PiecesIn(const QLineEdit& box) {
    const QString text = box.text().trimmed();
    if (text.isEmpty()) return 0;
    bool isWhole = false;
    const qint64 pieces = text.toLongLong(&isWhole);
    return isWhole && pieces >= 0 && pieces <= MostPieces ? pieces : -1;
}

bool HoldsAmount(const QLineEdit& box) {
    if (box.text().trimmed().isEmpty()) return true;
    try {
        const Money amount = values::CMoney(box.text());
        return amount >= Money() && amount <= Money::FromWhole(1'000'000'000);
    } catch (const values::Error&) {
        return false;
    }
}

Money AmountIn(const QLineEdit& box) {
    return HoldsAmount(box) && !box.text().trimmed().isEmpty() ? values::CMoney(box.text()) : Money();
}

QString NameOf(const upkeep::DrawerPeriod& period) {
    if (period.endReport == 0) return DrawerPage::tr("Since the last End Report");
    const QString number = QString::number(period.endReport);
    return period.closed.isValid() ? DrawerPage::tr("End Report %1 of %2").arg(number, values::DateText(period.closed))
                                   : DrawerPage::tr("End Report %1").arg(number);
}

}  // namespace

DrawerPage::DrawerPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.lstCounts->SetColumns({{tr("Count"), Qt::AlignRight, 60},
                              {tr("Counted"), Qt::AlignLeft, 176},
                              {tr("By"), Qt::AlignLeft, -1},
                              {tr("End Report"), Qt::AlignRight, 88},
                              {tr("Should be"), Qt::AlignRight, 88},
                              {tr("Found"), Qt::AlignRight, 88},
                              {tr("Difference"), Qt::AlignRight, 88},
                              {tr("Remark"), Qt::AlignLeft, 110}});
    ui.lstCounts->SetEmptyText(tr("Nothing was counted yet. Count the drawer on the page before and keep the count."));
    none_ = new QLabel(ui.panelPieces);
    none_->setWordWrap(true);
    ui.layoutPieces->addWidget(none_, 0, 0, 1, 2 * SecondHalf);
    for (const int column : {2, SecondHalf + 2})
        ui.layoutPieces->setColumnMinimumWidth(column, forms::Scaled(SumWidth));
    ui.layoutPieces->setColumnMinimumWidth(SecondHalf - 1, forms::Scaled(BetweenHalves));
    ui.layoutPieces->setColumnStretch(SecondHalf + 3, 1);
    NumericKeys({ui.txtPutIn, ui.txtTakenOut});
    ShrinkFigures({ui.txtDifference});
    OnChange(ui.cboPeriod, &DrawerPage::cboPeriod_Choice);
    OnChange(ui.txtPutIn, &DrawerPage::Figures_Change);
    OnChange(ui.txtTakenOut, &DrawerPage::Figures_Change);
    EnterMovesOn({ui.cboPeriod, ui.txtPutIn, ui.txtTakenOut, ui.txtRemark});
    On(ui.cmdKeep, &DrawerPage::cmdKeep_Click);
    On(ui.cmdEmpty, &DrawerPage::cmdEmpty_Click);
    On(ui.cmdPieces, &DrawerPage::cmdPieces_Click);
    On(ui.cmdPrint, &DrawerPage::cmdPrint_Click);
    connect(ui.lstCounts, &forms::ListView::RowChosen, this, Guarded(&DrawerPage::lstCounts_Chosen));
}

void DrawerPage::Form_Load() {
    OpenKept();
    LayOutRows();
    FillPeriods();
    OfferFiscalCash();
    ListCounts();
}

void DrawerPage::Form_Activate() {
    FillPeriods();
    ReadSold();
    Figures_Change();
}

// Without counts the page still sums up what is typed.
void DrawerPage::OpenKept() {
    ui.lblFault->hide();
    try {
        if (QFile::exists(output::InProgramFolder(upkeep::ManagerFile))) Kept();
    } catch (const values::Error& error) {
        ui.lblFault->setText(tr("Counts can't be kept or shown. %1").arg(error.Description()));
        ui.lblFault->show();
        ui.cmdKeep->setEnabled(false);
        ui.cmdPieces->setEnabled(false);
    }
}

store::Database& DrawerPage::Kept() {
    if (!kept_) kept_ = upkeep::OpenManagerStore(output::ProgramFolder());
    return *kept_;
}

// Two columns of notes and coins side by side, the larger ones on the left.
void DrawerPage::LayOutRows() {
    const QList<Money> worths = upkeep::DenominationsOf(kept_.get(), TheSettings.Currency);
    none_->setText(tr("Which notes and coins %1 has is not known yet. Press \"Notes and coins\" and type them.")
                       .arg(TheSettings.Currency));
    none_->setVisible(worths.isEmpty());
    for (Row& row : rows_) {
        for (QWidget* part : std::initializer_list<QWidget*>{row.name, row.pieces, row.sum}) part->hide();
        ui.layoutPieces->removeWidget(row.name);
        ui.layoutPieces->removeWidget(row.pieces);
        ui.layoutPieces->removeWidget(row.sum);
    }
    std::ranges::move(std::exchange(rows_, {}), std::back_inserter(spare_));
    const int rowsEach = static_cast<int>(worths.size() + 1) / 2;
    QWidget* before = ui.tabParts->tabBar();
    for (int number = 0; number < worths.size(); ++number) {
        Row row = MakeRow(number);
        row.worth = worths[number];
        row.name->setText(AmountText(row.worth));
        row.pieces->setAccessibleName(tr("Pieces of %1").arg(row.name->text()));
        row.pieces->clear();
        const int column = SecondHalf * (number / rowsEach);
        ui.layoutPieces->addWidget(row.name, number % rowsEach, column);
        ui.layoutPieces->addWidget(row.pieces, number % rowsEach, column + 1);
        ui.layoutPieces->addWidget(row.sum, number % rowsEach, column + 2);
        for (QWidget* part : std::initializer_list<QWidget*>{row.name, row.pieces, row.sum}) part->show();
        setTabOrder(before, row.pieces);
        before = row.pieces;
        rows_.push_back(row);
    }
    for (QWidget* control : std::initializer_list<QWidget*>{ui.cboPeriod, ui.txtPutIn, ui.txtTakenOut, ui.txtRemark,
                                                            ui.cmdKeep, ui.cmdEmpty, ui.cmdPieces})
        setTabOrder(std::exchange(before, control), control);
    for (int row = 0; row < ui.layoutPieces->rowCount(); ++row) ui.layoutPieces->setRowStretch(row, 0);
    ui.layoutPieces->setRowStretch(rowsEach, 1);  // the rest is empty
    Figures_Change();
}

// One that was laid out before, or a new one.
DrawerPage::Row DrawerPage::MakeRow(int number) {
    const QString name = u"txtPieces%1"_s.arg(number);
    const auto spare = std::ranges::find_if(spare_, [&](const Row& row) { return row.pieces->objectName() == name; });
    if (spare != spare_.end()) {
        const Row row = *spare;
        spare_.erase(spare);
        return row;
    }
    const Row row{{}, new QLabel(ui.panelPieces), new QLineEdit(ui.panelPieces), new QLabel(ui.panelPieces)};
    row.pieces->setObjectName(name);
    row.pieces->setFixedWidth(forms::Scaled(PiecesWidth));
    row.pieces->setAlignment(Qt::AlignRight);
    row.pieces->setMaxLength(7);
    row.name->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row.name->setBuddy(row.pieces);
    row.sum->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row.sum->setProperty("role", u"muted"_s);
    NumericKeys({row.pieces});
    EnterMovesOn({row.pieces});
    OnChange(row.pieces, &DrawerPage::Figures_Change);
    return row;
}

// The chosen one stays, also when an End Report came before it; the open one is chosen otherwise.
void DrawerPage::FillPeriods() {
    const qint64 chosen = EndReport();
    const QSignalBlocker quiet(ui.cboPeriod);
    ui.cboPeriod->clear();
    for (const upkeep::DrawerPeriod& period : upkeep::DrawerPeriods(MainStore(), EndReportsShown))
        ui.cboPeriod->addItem(NameOf(period), period.endReport);
    ui.cboPeriod->setCurrentIndex(std::max(0, ui.cboPeriod->findData(chosen)));
}

qint64 DrawerPage::EndReport() const {
    return ui.cboPeriod->currentData().toLongLong();
}

void DrawerPage::cboPeriod_Choice() {
    ReadSold();
    OfferFiscalCash();
    Figures_Change();
}

void DrawerPage::ReadSold() {
    sold_ = upkeep::ReadCashSold(MainStore(), EndReport());
}

// Known only of the open period. What was typed over an offer stays.
void DrawerPage::OfferFiscalCash() {
    upkeep::FiscalCash cash;
    QFile commands(output::InProgramFolder(TheSettings.FiskalniFile));
    if (EndReport() == 0 && !TheSettings.FiskalniFile.isEmpty() && commands.open(QIODevice::ReadOnly))
        cash = upkeep::ReadFiscalCash(commands);
    const auto offer = [](QLineEdit* box, Money before, Money now) {
        const auto text = [](Money amount) { return amount == Money() ? QString() : AmountText(amount); };
        if (box->text() == text(before)) box->setText(text(now));
    };
    offer(ui.txtPutIn, offered_.putIn, cash.putIn);
    offer(ui.txtTakenOut, offered_.takenOut, cash.takenOut);
    offered_ = cash;
}

upkeep::Denominations DrawerPage::Pieces() const {
    upkeep::Denominations pieces;
    for (const Row& row : rows_)
        if (const qint64 count = PiecesIn(*row.pieces); count > 0) pieces << upkeep::Denomination{row.worth, count};
    return pieces;
}

upkeep::DrawerCount DrawerPage::Count() const {
    const upkeep::Denominations pieces = Pieces();
    return {.number = 0,
            .day = values::Today(),
            .time = values::TimeNow(),
            .userID = TheSession.SessionUserID,
            .userName = TheSession.SessionUserName,
            .currency = TheSettings.Currency,
            .pieces = pieces,
            .counted = SumOf(pieces),
            .endReport = EndReport(),
            .sold = sold_,
            .putIn = AmountIn(*ui.txtPutIn),
            .takenOut = AmountIn(*ui.txtTakenOut),
            .remark = ui.txtRemark->text()};
}

void DrawerPage::Figures_Change() {
    for (const Row& row : rows_) {
        const qint64 pieces = PiecesIn(*row.pieces);
        row.sum->setText(pieces < 0    ? u"?"_s
                         : pieces == 0 ? QString()
                                       : AmountText(row.worth * Money::FromWhole(pieces)));
    }
    const upkeep::DrawerCount count = Count();
    ui.lblSold->setText(AmountText(count.sold));
    ui.lblExpected->setText(AmountText(count.Expected()));
    ui.lblCounted->setText(AmountText(count.counted));
    ui.lblDifference->setText(count.Difference() > Money()   ? tr("Too much in the drawer")
                              : count.Difference() < Money() ? tr("Missing in the drawer")
                                                             : tr("Difference"));
    ui.txtDifference->setText((count.Difference() > Money() ? u"+"_s : QString()) + AmountText(count.Difference()));
}

QLineEdit* DrawerPage::FirstFault() const {
    for (const Row& row : rows_)
        if (PiecesIn(*row.pieces) < 0) return row.pieces;
    for (QLineEdit* box : {ui.txtPutIn, ui.txtTakenOut})
        if (!HoldsAmount(*box)) return box;
    return nullptr;
}

// The drawer was counted beside the figure on the page; one that is another now must be looked at first.
void DrawerPage::cmdKeep_Click() {
    if (QLineEdit* fault = FirstFault()) {
        forms::Inform(tr("This is no number of pieces and no amount."), Caption());
        return forms::GoTo(fault);
    }
    const Money seen = sold_;
    ReadSold();
    if (sold_ != seen) {
        FillPeriods();
        Figures_Change();
        return forms::Inform(tr("Something was sold, or an End Report was made, since this page came up. The count is "
                                "not kept: look at the difference again."),
                             Caption());
    }
    const qint64 number = upkeep::KeepCount(Kept(), Count());
    cmdEmpty_Click();
    ListCounts();
    forms::Inform(tr("Count %1 is kept.").arg(number), Caption());
}

void DrawerPage::cmdEmpty_Click() {
    for (const Row& row : rows_) row.pieces->clear();
    for (QLineEdit* box : {ui.txtPutIn, ui.txtTakenOut, ui.txtRemark}) box->clear();
    offered_ = {};
    OfferFiscalCash();
    if (!rows_.empty()) rows_.front().pieces->setFocus();
}

void DrawerPage::cmdPieces_Click() {
    NotesAndCoins entry(TheSettings.Currency, upkeep::DenominationsOf(kept_.get(), TheSettings.Currency));
    entry.ShowModal();
    if (!entry.Chosen()) return;
    upkeep::ChooseDenominations(Kept(), TheSettings.Currency, *entry.Chosen());
    LayOutRows();
}

void DrawerPage::ListCounts() {
    if (!kept_) return lstCounts_Chosen();
    counts_ = upkeep::KeptCounts(*kept_);
    ui.lstCounts->Clear();
    for (const upkeep::DrawerCount& count : counts_)
        ui.lstCounts->Add({QString::number(count.number), MomentText(QDateTime(count.day, count.time)), count.userName,
                           count.endReport == 0 ? QString() : QString::number(count.endReport),
                           AmountText(count.Expected()), AmountText(count.counted), AmountText(count.Difference()),
                           count.remark});
    if (!counts_.isEmpty()) ui.lstCounts->Select(0);
    lstCounts_Chosen();
}

void DrawerPage::lstCounts_Chosen() {
    const int row = ui.lstCounts->Selected();
    const bool isChosen = row >= 0 && row < counts_.size();
    ui.cmdPrint->setEnabled(isChosen);
    ui.lblPieces->setText(isChosen ? PiecesText(counts_[row]) : QString());
}

void DrawerPage::cmdPrint_Click() {
    const int row = ui.lstCounts->Selected();
    if (row < 0) return;
    output::PagePrinter& printer = output::ThePagePrinter();
    try {
        for (const QString& line : DrawerLines(counts_[row])) printer.PrintLine(line);
        printer.EndJob();
    } catch (const output::OutputError& error) {
        printer.Abandon();
        return forms::Tell(error.Description(), forms::Icon::Warning, Caption());
    }
    forms::Inform(tr("Count %1 is printed.").arg(counts_[row].number), Caption());
}

}  // namespace manager
