#pragma once

#include "manager/Page.h"
#include "ui_ReportsPage.h"
#include "upkeep/reports/ShopReport.h"

namespace manager {

// The figures of the till's reports as tables, to look at and to save for a spreadsheet.
class ReportsPage : public Page {
    Q_OBJECT

public:
    explicit ReportsPage(QWidget* parent);

    Ui::ReportsPage ui;

protected:
    void Form_Load() override;

private:
    void cboReport_Choice();
    void cmdShow_Click();
    void cmdSave_Click();

    const upkeep::ShopReport& Chosen() const;
    void ShowSheet();
    void Empty();

    const std::vector<upkeep::ShopReport> reports_ = upkeep::ShopReports();
    // What the list shows, and what is saved; null while nothing is shown.
    std::shared_ptr<const upkeep::Sheet> sheet_;
};

}  // namespace manager
