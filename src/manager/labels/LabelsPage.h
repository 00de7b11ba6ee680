#pragma once

#include "manager/Page.h"
#include "ui_LabelsPage.h"

namespace manager {

class GoodsChoice;
class LabelChoice;
class PriceListChoice;
class PrintedPages;

// Shelf labels and the price list.
class LabelsPage : public Page {
    Q_OBJECT

public:
    explicit LabelsPage(QWidget* parent);

    Ui::LabelsPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void TieGoods();
    void cmdPrint_Click();
    void cmdPdf_Click();
    void Goods_Changed();
    void TellWhatComes();

    // What the part in front prints; null, after a box, when it can't.
    std::shared_ptr<const PrintedPages> PagesToPrint();
    void Print(const QString& pdfPath);
    bool IsPriceList() const;

    GoodsChoice* goods_;
    LabelChoice* labels_;
    PriceListChoice* list_;
    int gone_ = 0;
};

}  // namespace manager
