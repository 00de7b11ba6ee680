#include "manager/labels/LabelPages.h"

#include <algorithm>

namespace manager {

LabelPages::LabelPages(upkeep::LabelSheet sheet, int firstPlace, int dotsPerInch,
                       const std::vector<LabelCopies>& labels)
    : sheet_(sheet), firstPlace_(std::clamp(firstPlace, 0, sheet.Count() - 1)), dots_(dotsPerInch) {
    for (const LabelCopies& each : labels) labels_.insert(labels_.end(), static_cast<size_t>(each.copies), each.facts);
}

int LabelPages::Count() const {
    return upkeep::SheetsFor(sheet_, Labels(), firstPlace_);
}

int LabelPages::WithoutBars() const {
    const QRect place = dots_.Of(upkeep::PrintableOf(sheet_, 0));
    return static_cast<int>(std::ranges::count_if(
        labels_, [&](const LabelFacts& facts) { return !facts.code.isEmpty() && !HasBars(dots_, place, facts); }));
}

int LabelPages::WithoutUnitPrice() const {
    return static_cast<int>(std::ranges::count(labels_, true, &LabelFacts::isUnitPriceUnknown));
}

void LabelPages::Paint(QPainter& painter, int page) const {
    for (int place = 0; place < sheet_.Count(); ++place) {
        const int label = page * sheet_.Count() + place - firstPlace_;
        if (showsPlaces_) {
            painter.setPen(QPen(Qt::lightGray, 0));
            const QRectF cell = upkeep::CellOf(sheet_, place);
            painter.drawRect(
                QRect(dots_.Of(cell.left()), dots_.Of(cell.top()), dots_.Of(cell.width()), dots_.Of(cell.height())));
        }
        if (label < 0 || label >= Labels()) continue;
        PaintLabel(painter, dots_, dots_.Of(upkeep::PrintableOf(sheet_, place)), labels_[static_cast<size_t>(label)]);
    }
}

}  // namespace manager
