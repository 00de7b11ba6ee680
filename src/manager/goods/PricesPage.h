#pragma once

#include "manager/Page.h"
#include "ui_PricesPage.h"
#include "upkeep/goods/PriceChange.h"

namespace manager {

// The prices of many goods at once, and the rates of their taxes.
class PricesPage : public Page {
    Q_OBJECT

public:
    explicit PricesPage(QWidget* parent);

    Ui::PricesPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void Choice_Changed();
    void cmdWrite_Click();
    void cmdUndo_Click();
    void cmdRates_Click();

    upkeep::PriceChange Chosen() const;
    void Preview();

    upkeep::GoodsPreview preview_;
};

}  // namespace manager
