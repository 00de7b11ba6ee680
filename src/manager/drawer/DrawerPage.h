#pragma once

#include <vector>

#include "manager/Page.h"
#include "ui_DrawerPage.h"
#include "upkeep/Drawer.h"
#include "upkeep/ManagerStore.h"

class QLabel;

namespace manager {

// The drawer is counted, note by note and coin by coin, beside what should be in it. A count that is kept stays as it
// is.
class DrawerPage : public Page {
    Q_OBJECT

public:
    explicit DrawerPage(QWidget* parent);

    Ui::DrawerPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    // One note or coin on the page.
    struct Row {
        values::Money worth;
        QLabel* name;
        QLineEdit* pieces;
        QLabel* sum;
    };

    void cmdKeep_Click();
    void cmdEmpty_Click();
    void cmdPieces_Click();
    void cmdPrint_Click();
    void cboPeriod_Choice();
    void Figures_Change();
    void lstCounts_Chosen();

    void OpenKept();
    store::Database& Kept();
    void LayOutRows();
    Row MakeRow(int number);
    void FillPeriods();
    qint64 EndReport() const;
    void ReadSold();
    void OfferFiscalCash();
    upkeep::Denominations Pieces() const;
    upkeep::DrawerCount Count() const;
    QLineEdit* FirstFault() const;
    void ListCounts();

    std::unique_ptr<store::Database> kept_;  // once there is a manager.pos
    std::vector<Row> rows_;
    std::vector<Row> spare_;  // of a currency with more of them
    QLabel* none_ = nullptr;
    values::Money sold_;
    upkeep::FiscalCash offered_;
    QList<upkeep::DrawerCount> counts_;
};

}  // namespace manager
