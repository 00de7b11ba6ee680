#include "manager/drawer/DrawerPage.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

#include "core/Session.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "manager/Texts.h"
#include "output/Channel.h"
#include "output/Folder.h"
#include "output/PagePrinter.h"
#include "values/Clock.h"
#include "values/DateText.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace manager {

namespace {

constexpr int ShownEndReports = 10;
constexpr int MostPieces = 9999;

Money AmountIn(const QLineEdit* box) {
    return values::IsNumeric(box->text()) ? values::CMoney(box->text()) : Money();
}

}  // namespace

DrawerPage::DrawerPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    BuildPieces();
    ui.lstCounts->SetColumns({{tr("Counted"), Qt::AlignLeft, 146},
                              {tr("By"), Qt::AlignLeft, 76},
                              {tr("Found"), Qt::AlignRight, 88},
                              {tr("Expected"), Qt::AlignRight, 88},
                              {tr("Difference"), Qt::AlignRight, 88},
                              {tr("Remark"), Qt::AlignLeft, -1}});
    ui.lstCounts->SetEmptyText(tr("No drawer was counted yet."));
    NumericKeys({ui.txtPutIn, ui.txtTakenOut});
    EnterMovesOn();
    OnChange(ui.cboPeriod, &DrawerPage::Count_Changed);
    for (QLineEdit* box : {ui.txtPutIn, ui.txtTakenOut}) OnChange(box, &DrawerPage::Count_Changed);
    On(ui.cmdStore, &DrawerPage::cmdStore_Click);
    On(ui.cmdClear, &DrawerPage::cmdClear_Click);
    On(ui.cmdPrint, &DrawerPage::cmdPrint_Click);
}

// In two columns, the notes before the coins.
void DrawerPage::BuildPieces() {
    denominations_ = upkeep::Denominations(TheSettings.Currency);
    auto* grid = new QGridLayout(ui.fraPieces);
    const int rows = (static_cast<int>(denominations_.size()) + 1) / 2;
    for (int i = 0; i < static_cast<int>(denominations_.size()); ++i) {
        auto* box = new QSpinBox(ui.fraPieces);
        box->setObjectName(u"spnPieces%1"_s.arg(i));
        box->setMaximum(MostPieces);
        auto* label = new QLabel(values::Format(denominations_[static_cast<size_t>(i)], u"0.##"), ui.fraPieces);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setBuddy(box);
        box->setAccessibleName(tr("Pieces of %1").arg(label->text()));
        grid->addWidget(label, i % rows, 2 * (i / rows));
        grid->addWidget(box, i % rows, 2 * (i / rows) + 1);
        connect(box, &QSpinBox::valueChanged, this, Guarded(&DrawerPage::Count_Changed));
        pieces_.push_back(box);
    }
    grid->setRowStretch(rows, 1);
}

void DrawerPage::Form_Load() {
    manager_ = upkeep::OpenManagerStore(output::ProgramFolder());
    FillPeriods();
    ShowCounts();
    Count_Changed();
}

// Tills sell on.
void DrawerPage::Form_Activate() {
    FillPeriods();
    Count_Changed();
}

void DrawerPage::FillPeriods() {
    const QSignalBlocker quiet(ui.cboPeriod);
    const int chosen = std::max(0, ui.cboPeriod->currentIndex());
    periods_ = upkeep::DrawerPeriods(MainStore(), ShownEndReports);
    ui.cboPeriod->clear();
    for (const upkeep::DrawerPeriod& period : periods_)
        ui.cboPeriod->addItem(period.endReport == 0
                                  ? tr("Since the last End Report: %1").arg(AmountText(period.sales))
                                  : tr("End Report %1 of %2: %3")
                                        .arg(QString::number(period.endReport), values::DateText(period.closed),
                                             AmountText(period.sales)));
    ui.cboPeriod->setCurrentIndex(std::min(chosen, ui.cboPeriod->count() - 1));
}

upkeep::DrawerCount DrawerPage::Typed() const {
    upkeep::DrawerCount count{.counted = values::Now(),
                              .user = TheSession.SessionUserName,
                              .period = ui.cboPeriod->currentText(),
                              .pieces = {},
                              .sales = periods_[static_cast<size_t>(std::max(0, ui.cboPeriod->currentIndex()))].sales,
                              .putIn = AmountIn(ui.txtPutIn),
                              .takenOut = AmountIn(ui.txtTakenOut),
                              .remark = ui.txtRemark->text()};
    QStringList pieces;
    for (size_t i = 0; i < pieces_.size(); ++i) {
        const int number = pieces_[i]->value();
        if (number == 0) continue;
        count.found += Money::FromUnits(denominations_[i].Units() * number);
        pieces << u"%1 x %2"_s.arg(QString::number(number), values::Format(denominations_[i], u"0.##"));
    }
    count.pieces = pieces.join(u"; "_s);
    return count;
}

void DrawerPage::Count_Changed() {
    const upkeep::DrawerCount count = Typed();
    ui.lblExpected->setText(tr("%1 should be there, %2 is").arg(AmountText(count.Expected()), AmountText(count.found)));
    const Money difference = count.Difference();
    ui.lblDifference->setText(difference == Money()  ? tr("It is exact")
                              : difference > Money() ? tr("%1 too much").arg(AmountText(difference))
                                                     : tr("%1 missing").arg(AmountText(-difference)));
    ui.cmdStore->setEnabled(!count.pieces.isEmpty());
}

void DrawerPage::ShowCounts() {
    counts_ = upkeep::ReadCounts(*manager_);
    ui.lstCounts->Clear();
    for (const upkeep::DrawerCount& count : counts_)
        ui.lstCounts->Add({MomentText(count.counted), count.user, AmountText(count.found), AmountText(count.Expected()),
                           AmountText(count.Difference()), count.remark});
    if (!counts_.empty()) ui.lstCounts->Select(0);
    ui.cmdPrint->setEnabled(!counts_.empty());
}

void DrawerPage::cmdStore_Click() {
    const upkeep::DrawerCount count = Typed();
    if (!forms::Ask(tr("Keep this count? It can't be changed afterwards."), Caption())) return;
    upkeep::StoreCount(*manager_, count);
    cmdClear_Click();
    ShowCounts();
}

void DrawerPage::cmdClear_Click() {
    for (QSpinBox* box : pieces_) box->setValue(0);
    for (QLineEdit* box : {ui.txtPutIn, ui.txtTakenOut, ui.txtRemark}) box->clear();
    pieces_.front()->setFocus();
}

void DrawerPage::cmdPrint_Click() {
    const int chosen = ui.lstCounts->Selected();
    if (chosen < 0) return;
    const upkeep::DrawerCount& count = counts_[static_cast<size_t>(chosen)];
    const QStringList lines{
        TheSettings.NazivFirme,
        tr("Count of the drawer, %1, by %2").arg(MomentText(count.counted), count.user),
        count.period,
        count.pieces,
        tr("Put in %1, taken out %2").arg(AmountText(count.putIn), AmountText(count.takenOut)),
        tr("Found %1, expected %2, difference %3")
            .arg(AmountText(count.found), AmountText(count.Expected()), AmountText(count.Difference())),
        count.remark};
    try {
        for (const QString& line : lines) output::ThePagePrinter().PrintLine(line);
        output::ThePagePrinter().EndJob();
    } catch (const output::OutputError& error) {
        output::ThePagePrinter().Abandon();
        forms::Inform(error.Description(), Caption());
    }
}

}  // namespace manager
