#include "forms/ShrinkToFit.h"

#include <QEvent>

#include "forms/Controls.h"
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
    const auto& sizes = box_->property("role").toString() == u"total" ? TheTokens().TotalSizes : TheTokens().EntrySizes;
    const int last = static_cast<int>(sizes.size()) - 1;
    QFont font = box_->font();
    int step = 0;
    for (; step < last; ++step) {
        font.setPixelSize(sizes[static_cast<size_t>(step)]);
        const QFontMetrics metrics(font);
        if (metrics.horizontalAdvance(box_->text()) + BoxPadding <= box_->width() && metrics.ascent() <= box_->height())
            break;
    }
    if (step == step_) return;
    step_ = step;
    box_->setProperty("fit", QString::number(step));
    Restyle(box_);
}

}  // namespace forms
