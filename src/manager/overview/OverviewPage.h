#pragma once

#include "manager/Page.h"
#include "manager/overview/InvoicesForm.h"
#include "ui_OverviewPage.h"
#include "upkeep/Overview.h"

namespace manager {

// How the shop does, to look at: today and this month against before, days, hours, goods, groups, cashiers, taxes, and
// what runs out.
class OverviewPage : public Page {
    Q_OBJECT

public:
    explicit OverviewPage(QWidget* parent);

    Ui::OverviewPage ui;

protected:
    void Form_Load() override;

private:
    void cboRange_Choice();
    void cmdLook_Click();
    void cmdTable_Click();
    void cmdPrint_Click();
    void cmdSave_Click();

    void ShowAll();
    void ShowTiles();
    void ShowDaysAndHours();
    void ShowGoods();
    void ShowTable();
    void ShowBehind(Chart* chart, int figure);
    // A line a figure: what it belongs to, its name, the figure.
    QList<QStringList> TableOfFigures() const;
    QString ReportAsHtml() const;

    upkeep::Overview overview_;
    upkeep::TodaysFigures today_;
    std::vector<upkeep::NamedSold> worst_;
    std::vector<upkeep::RunningOut> running_;
};

}  // namespace manager
