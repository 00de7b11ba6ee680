#pragma once

#include <vector>

#include "core/Settings.h"
#include "manager/labels/PrintedPages.h"
#include "upkeep/labels/ShelfGoods.h"

namespace manager {

struct PriceListGroup {
    QString name;
    std::vector<upkeep::ShelfGood> goods;
};

// The groups of the touch table in its order, then the goods that have no button.
std::vector<PriceListGroup> GroupsOf(const std::vector<upkeep::ShelfGood>& goods, const QStringList& names);

// The price list: A4 pages under the shop's heading, a table of the goods of each group.
class PriceListPages : public PrintedPages {
public:
    struct Facts {
        Heading heading;
        QString currency;
        QString day;
        std::vector<PriceListGroup> groups;
    };
    explicit PriceListPages(Facts facts);

    QSizeF Paper() const override;
    int Count() const override { return static_cast<int>(pages_.size()); }
    Dots Measure() const override { return dots_; }
    void Paint(QPainter& painter, int page) const override;

private:
    // A line of the table: a good, or where there is none the name of its group.
    struct Row {
        const PriceListGroup* group;
        const upkeep::ShelfGood* good;
        bool goesOn = false;  // the group began on an earlier page
    };
    void BreakIntoPages();
    int RowsOfPage(size_t page) const;
    int TableTop(size_t page) const;
    void PaintHeading(QPainter& painter) const;
    void PaintColumns(QPainter& painter, int top) const;
    void PaintRow(QPainter& painter, const Row& row, int top) const;
    void PaintFoot(QPainter& painter, int page) const;

    Facts facts_;
    Dots dots_;
    std::vector<std::vector<Row>> pages_;
};

}  // namespace manager
