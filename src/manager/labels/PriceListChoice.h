#pragma once

#include <QWidget>

#include "manager/labels/PriceListPages.h"
#include "ui_PriceListChoice.h"

namespace manager {

// What the price list holds, and how it looks.
class PriceListChoice : public QWidget {
    Q_OBJECT

public:
    explicit PriceListChoice(QWidget* parent = nullptr);

    void SetGoods(const upkeep::ShelfGoods& all, std::vector<upkeep::ShelfGood> chosen);
    std::shared_ptr<const PriceListPages> Pages() const { return pages_; }

    Ui::PriceListChoice ui;

Q_SIGNALS:
    void Changed();

private:
    void ShowPages();

    upkeep::ShelfGoods all_;
    std::vector<upkeep::ShelfGood> chosen_;
    std::shared_ptr<const PriceListPages> pages_;
};

}  // namespace manager
