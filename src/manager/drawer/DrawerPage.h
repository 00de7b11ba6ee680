#pragma once

#include "manager/Page.h"
#include "ui_DrawerPage.h"
#include "upkeep/DrawerCount.h"

class QSpinBox;

namespace manager {

// The money in the drawer, counted by notes and coins and compared with what should be there.
class DrawerPage : public Page {
    Q_OBJECT

public:
    explicit DrawerPage(QWidget* parent);

    Ui::DrawerPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void Count_Changed();
    void cmdStore_Click();
    void cmdClear_Click();
    void cmdPrint_Click();

    void BuildPieces();
    void FillPeriods();
    void ShowCounts();
    upkeep::DrawerCount Typed() const;

    std::unique_ptr<store::Database> manager_;
    std::vector<values::Money> denominations_;
    std::vector<QSpinBox*> pieces_;  // of each
    std::vector<upkeep::DrawerPeriod> periods_;
    std::vector<upkeep::DrawerCount> counts_;
};

}  // namespace manager
