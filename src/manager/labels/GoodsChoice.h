#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "manager/labels/LabelPainter.h"
#include "ui_GoodsChoice.h"

namespace manager {

// The goods that labels are made of: looked for at the left, and taken over to the right with a number of copies.
class GoodsChoice : public QWidget {
    Q_OBJECT

public:
    explicit GoodsChoice(QWidget* parent = nullptr);

    // Chosen goods are the same ones by their code; gives how many are no longer there.
    int SetGoods(upkeep::ShelfGoods goods);
    const upkeep::ShelfGoods& Goods() const { return *goods_; }

    struct Chosen {
        upkeep::ShelfGood good;
        LabelFacts label;
        int copies = 1;
    };
    const std::vector<Chosen>& All() const { return chosen_; }

    void Find();
    void Add();
    void AddAll();
    void Remove();
    void RemoveAll();
    void TakeCopies();
    void ShowCopies();

    Ui::GoodsChoice ui;

Q_SIGNALS:
    void Changed();

private:
    void Take(const upkeep::ShelfGood& good);
    void ShowChosen(int selected);
    void FillFilters();

    std::shared_ptr<const upkeep::ShelfGoods> goods_ = std::make_shared<upkeep::ShelfGoods>();
    std::vector<size_t> found_;
    std::vector<Chosen> chosen_;
    bool isFilling_ = false;
};

}  // namespace manager
