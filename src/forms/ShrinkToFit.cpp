#include "forms/ShrinkToFit.h"

#include <QEvent>
#include <QStyle>

#include "forms/Tokens.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

// Borders, paddings and the caret's room of a box.
constexpr int BoxPadding = 28;

}  // namespace

ShrinkToFit::ShrinkToFit(QLineEdit* box) : QObject(box), box_(box) {
    box->installEventFilter(this);
    connect(box, &QLineEdit::textChanged, this, &ShrinkToFit::Fit);
}

bool ShrinkToFit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) Fit();
    return QObject::eventFilter(watched, event);
}

void ShrinkToFit::Fit() {
    const auto& sizes = box_->property("role").toString() == u"total" ? Tokens::TotalSizes : Tokens::EntrySizes;
    const int last = static_cast<int>(sizes.size()) - 1;
    QFont font = box_->font();
    int step = 0;
    for (; step < last; ++step) {
        font.setPixelSize(sizes[static_cast<size_t>(step)]);
        if (QFontMetrics(font).horizontalAdvance(box_->text()) + BoxPadding <= box_->width()) break;
    }
    if (step == step_) return;
    step_ = step;
    box_->setProperty("fit", QString::number(step));
    box_->style()->unpolish(box_);
    box_->style()->polish(box_);
}

}  // namespace forms
