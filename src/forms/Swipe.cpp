#include "forms/Swipe.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QScrollBar>

#include "forms/Theme.h"

namespace forms {

namespace {

// The tip of a finger rolls as it presses.
constexpr int FarthestTap = 12;

}  // namespace

bool IsTap(const QPointF& down, const QPointF& up) {
    return (up - down).manhattanLength() <= Scaled(FarthestTap);
}

Swipe::Swipe(QAbstractScrollArea* area, std::function<void()> drawn)
    : QObject(area), area_(area), drawn_(std::move(drawn)) {
    area->viewport()->installEventFilter(this);
}

bool Swipe::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress: {
            const auto& press = static_cast<const QMouseEvent&>(*event);
            isDown_ = press.button() == Qt::LeftButton;
            isDrawn_ = false;
            down_ = press.position();
            from_ = {area_->horizontalScrollBar()->value(), area_->verticalScrollBar()->value()};
            break;
        }
        case QEvent::MouseMove:
            if (isDown_) return Move(static_cast<const QMouseEvent&>(*event));
            break;
        case QEvent::MouseButtonRelease:
            isDown_ = false;
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

// The area itself hears nothing of it: it would take the rows that the finger passes for chosen ones.
bool Swipe::Move(const QMouseEvent& event) {
    if (!isDrawn_ && !IsTap(down_, event.position())) {
        isDrawn_ = true;
        drawn_();
    }
    if (isDrawn_) {
        const QPoint way = (event.position() - down_).toPoint();
        area_->horizontalScrollBar()->setValue(from_.x() - way.x());
        area_->verticalScrollBar()->setValue(from_.y() - way.y());
    }
    return true;
}

}  // namespace forms
