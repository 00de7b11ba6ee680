#pragma once

#include <vector>

#include "manager/labels/LabelPainter.h"
#include "manager/labels/PrintedPages.h"
#include "upkeep/labels/LabelSheet.h"

namespace manager {

struct LabelCopies {
    LabelFacts facts;
    int copies = 1;
};

// Labels on their sheets, one after the other from a place of the first sheet on.
class LabelPages : public PrintedPages {
public:
    LabelPages(upkeep::LabelSheet sheet, int firstPlace, int dotsPerInch, const std::vector<LabelCopies>& labels);

    QSizeF Paper() const override { return sheet_.paper; }
    int Count() const override;
    Dots Measure() const override { return dots_; }
    void Paint(QPainter& painter, int page) const override;

    int Labels() const { return static_cast<int>(labels_.size()); }
    // How many of them have a code and no bars.
    int WithoutBars() const;
    // How many have a price and none of a kilogram or litre.
    int WithoutUnitPrice() const;
    // The outlines of all labels, for a preview: where they lie and whether they are used.
    void ShowPlaces() { showsPlaces_ = true; }

private:
    upkeep::LabelSheet sheet_;
    int firstPlace_;
    Dots dots_;
    std::vector<LabelFacts> labels_;
    bool showsPlaces_ = false;
};

}  // namespace manager
