#include "manager/labels/PagePreview.h"

#include <QMouseEvent>
#include <algorithm>

namespace manager {

namespace {

constexpr int Around = 6;  // pixels
constexpr double MostPixelsOfAMillimetre = 8;

}  // namespace

PagePreview::PagePreview(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PagePreview::Show(std::shared_ptr<const PrintedPages> pages) {
    pages_ = std::move(pages);
    Turn(0);
}

void PagePreview::Turn(int pages) {
    page_ = std::max(0, std::min(page_ + pages, Count() - 1));
    update();
}

QRectF PagePreview::PaperPlace() const {
    const QSizeF paper = pages_->Paper();
    const double scale = std::min(
        {(width() - 2 * Around) / paper.width(), (height() - 2 * Around) / paper.height(), MostPixelsOfAMillimetre});
    QRectF place(QPointF(), paper * scale);
    place.moveCenter(QRectF(rect()).center());
    return place;
}

void PagePreview::paintEvent(QPaintEvent*) {
    if (!pages_) return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QRectF place = PaperPlace();
    painter.fillRect(place, Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(place);
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    const double scale = place.width() / pages_->Measure().Of(pages_->Paper().width());
    painter.scale(scale, scale);
    pages_->Paint(painter, page_);
}

void PagePreview::mousePressEvent(QMouseEvent* event) {
    if (!pages_) return;
    const QRectF place = PaperPlace();
    if (!place.contains(event->position())) return;
    Q_EMIT Pressed((event->position() - place.topLeft()) * (pages_->Paper().width() / place.width()));
}

void PagePreview::wheelEvent(QWheelEvent* event) {
    Turn(event->angleDelta().y() < 0 ? 1 : -1);
    event->accept();
}

}  // namespace manager
