#pragma once

#include <memory>

#include "manager/Page.h"
#include "manager/goods/GoodsWriting.h"
#include "ui_PricesPage.h"
#include "upkeep/goods/PriceChange.h"

namespace manager {

// Prices by percent, and the rates of taxes that have changed, for many goods at once.
class PricesPage : public Page {
    Q_OBJECT

public:
    explicit PricesPage(QWidget* parent);

    Ui::PricesPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void OfferGoods();
    void ShowWhatCounts();
    void ShowColumns(bool withReasons);
    void ShowPreview();
    void cmdLook_Click();
    void cmdWrite_Click();
    void cmdUndo_Click();

    bool IsAboutRates() const;
    upkeep::PriceWish Wish() const;
    QString Title() const;
    void Look();

    GoodsWriting writing_{*this};
    std::shared_ptr<const upkeep::Preview> preview_;
    QString title_;
};

}  // namespace manager
