#include "sales/SalesLayout.h"

#include <QHeaderView>

#include "forms/Controls.h"
#include "forms/Theme.h"

namespace {

constexpr int LinesInView = 6;
constexpr int LowestRow = 28;
constexpr int LowHead = 34;
constexpr int HeadHeight = 46;
constexpr int SumsHeight = 112;
constexpr int MiddleSums = 84;
constexpr int LowSums = 52;

}  // namespace

void SalesLayout::Arrange() {
    for (const auto arrangement : {Arrangement::Designed, Arrangement::EntryInOneRow, Arrangement::Low}) {
        Use(arrangement);
        if (HasRoomForLines()) break;
    }
    ui_.lv1->SetRowHeight(qBound(forms::Scaled(LowestRow), RowHeight(LinesInView), forms::Scaled(forms::FingerHeight)));
}

void SalesLayout::Use(Arrangement arrangement) {
    const int finger = forms::Scaled(forms::FingerHeight);
    if (arrangement != arrangement_ || finger != finger_) {
        arrangement_ = arrangement;
        finger_ = finger;
        const bool inOneRow = arrangement != Arrangement::Designed;
        const bool low = arrangement == Arrangement::Low;
        if (inOneRow)
            ui_.layoutTop->addWidget(ui_.panelEntry);
        else
            ui_.layoutLeft->insertWidget(1, ui_.panelEntry);
        ui_.layoutEntry->setDirection(inOneRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
        ui_.layoutEntry->setSpacing(inOneRow ? 10 : 4);
        ui_.layoutEntry->setStretch(0, inOneRow ? 54 : 0);
        ui_.layoutEntry->setStretch(1, inOneRow ? 46 : 0);
        const int gap = low ? 4 : inOneRow ? 6 : 8;
        for (QLayout* layout : {ui_.layout1, ui_.layoutLeft, ui_.layoutWork}) layout->setSpacing(gap);
        ui_.layoutEntry->setContentsMargins(12, gap, 12, gap + 2);
        ui_.layoutCustomer->setContentsMargins(12, gap / 2, 12, gap / 2);
        ui_.layout1->setContentsMargins(low ? 6 : 10, low ? 4 : 8, low ? 6 : 10, low ? 4 : 8);
        ui_.Frame10->setMinimumHeight(forms::Scaled(low ? LowHead : HeadHeight - 2));
        ui_.panelHead->setMinimumHeight(forms::Scaled(low ? LowHead : HeadHeight));
        ui_.lv1->setProperty("tight", low);
        forms::Restyle(ui_.lv1->header());
        ui_.lvPorez->setVisible(!low);
        const int sums = forms::Scaled(low ? LowSums : inOneRow ? MiddleSums : SumsHeight);
        ui_.lvPorez->setFixedHeight(sums);
        ui_.panelTotal->setFixedHeight(sums);
        ui_.layoutTotal->setContentsMargins(16, low ? 0 : 6, 16, low ? 2 : 6);
        if (low)
            ui_.layoutSums->insertWidget(0, ui_.txtPosDisplay, 11);
        else
            ui_.layoutWork->addWidget(ui_.txtPosDisplay);
    }
    ui_.layout1->activate();
}

bool SalesLayout::HasRoomForLines() const {
    return RowHeight(LinesInView) >= forms::Scaled(forms::FingerHeight);
}

// What a row may measure at most when so many are to be seen.
int SalesLayout::RowHeight(int rows) const {
    const int heading = ui_.lv1->header()->sizeHint().height();
    return (ui_.lv1->height() - heading - 2 * ui_.lv1->frameWidth()) / rows;
}
