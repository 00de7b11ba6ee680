#pragma once

#include <QElapsedTimer>

#include "manager/Page.h"
#include "manager/overview/OverviewCharts.h"
#include "manager/overview/OverviewRun.h"
#include "ui_OverviewPage.h"
#include "upkeep/InvoiceList.h"

namespace manager {

struct OverviewPaper;

// How the shop does, on one page: today, the month and the days that were chosen, in figures and charts.
class OverviewPage : public Page {
    Q_OBJECT

public:
    explicit OverviewPage(QWidget* parent);

    bool IsBusy() const override { return run_.IsRunning(); }

    Ui::OverviewPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Range_Click();
    void cmdShow_Click();
    void cmdTable_Click();
    void cmdPrint_Click();
    void cmdPdf_Click();
    void cmdCsv_Click();
    void cmdStop_Click();
    void optBy_Click();

    void PrepareCharts();
    upkeep::Days ChosenDays() const;
    void Read();
    void Show(const upkeep::Overview& overview);
    void ShowBoxes();
    void ShowGoods();
    void ShowState(const QString& fault);
    void PrepareChoices();
    upkeep::InvoicesWish BehindSpan(int mark) const;
    upkeep::By ChosenBy() const;
    void ShowInvoices(const QString& what, const upkeep::InvoicesWish& wish);
    void FitCharts();
    void Arrange(bool asTables);
    QList<ChartPanel*> Panels() const;
    OverviewPaper Paper() const;

    OverviewRun run_{this};
    QElapsedTimer sinceRead_;
    upkeep::Overview shown_;
    std::vector<Span> spans_;
    HoursShown hours_;
    ColumnChart* takings_;
    HeatMap* byHour_;
    RankList *best_, *idle_, *runningOut_, *groups_, *cashiers_, *taxes_;
};

}  // namespace manager
