#include "manager/charts/Chart.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>

namespace manager {

namespace {

constexpr int Edge = 3;  // for the frame of what has the focus

}  // namespace

Chart::Chart(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QRectF Chart::ContentPlace() const {
    return QRectF(rect()).adjusted(Edge, Edge, -Edge, -Edge);
}

QRectF Chart::BodyOf(const QRectF& place, const ChartLook& look) const {
    if (!HasHeadLine()) return place;
    return place.adjusted(0, QFontMetricsF(look.text).height() + 6, 0, 0);
}

void Chart::SetEmptyText(const QString& text) {
    emptyText_ = text;
    update();
}

void Chart::FiguresChanged() {
    pointedAt_ = pressed_ = -1;
    current_ = std::min(current_, Marks() - 1);
    if (current_ < 0 && Marks() > 0) current_ = 0;
    update();
}

int Chart::Lit() const {
    if (pointedAt_ >= 0) return pointedAt_;
    return hasFocus() ? current_ : -1;
}

QString Chart::Figure() const {
    const int mark = pointedAt_ >= 0 ? pointedAt_ : current_;
    return mark >= 0 && mark < Marks() ? MarkText(mark) : QString();
}

int Chart::MarkAt(QPointF point) const {
    const ChartLook look = ChartLook::OfTheme();
    return Marks() > 0 ? MarkIn(BodyOf(ContentPlace(), look), look, point) : -1;
}

int Chart::MarkIn(const QRectF& body, const ChartLook& look, QPointF point) const {
    for (int mark = 0; mark < Marks(); ++mark)
        if (MarkPlace(body, look, mark).contains(point)) return mark;
    return -1;
}

int Chart::Neighbour(int mark, int key) const {
    switch (key) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            return std::max(mark - 1, 0);
        case Qt::Key_Right:
        case Qt::Key_Down:
            return std::min(mark + 1, Marks() - 1);
        default:
            return -1;
    }
}

void Chart::PaintOn(QPainter& painter, const QRectF& place, const ChartLook& look) const {
    PaintWith(painter, place, look, -1, false);
}

void Chart::PaintWith(QPainter& painter, const QRectF& place, const ChartLook& look, int lit, bool isOnScreen) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(look.text);
    if (Marks() == 0) {
        painter.setPen(look.muted);
        painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
    } else {
        if (HasHeadLine()) {
            const QRectF head(place.left(), place.top(), place.width(), QFontMetricsF(look.text).height());
            // The figure takes the place of the legend while there is one.
            if (isOnScreen && lit >= 0) {
                painter.setPen(look.ink);
                painter.drawText(head, Qt::AlignRight,
                                 QFontMetricsF(look.text).elidedText(MarkText(lit), Qt::ElideRight, head.width()));
            } else {
                painter.setPen(look.muted);
                Legend(painter, head, look);
            }
        }
        PaintMarks(painter, BodyOf(place, look), look, lit);
    }
    painter.restore();
}

void Chart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const ChartLook look = ChartLook::OfTheme();
    PaintWith(painter, ContentPlace(), look, Lit(), true);
    if (!hasFocus()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.accent, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

void Chart::GoTo(int mark) {
    current_ = mark;
    pointedAt_ = -1;
    setAccessibleDescription(Figure());
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
    update();
}

void Chart::keyPressEvent(QKeyEvent* event) {
    if (Marks() == 0) return QWidget::keyPressEvent(event);
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (current_ >= 0) Q_EMIT Chosen(current_);
            return;
        case Qt::Key_Home:
            return GoTo(0);
        case Qt::Key_End:
            return GoTo(Marks() - 1);
        default:
            if (const int next = Neighbour(std::max(current_, 0), event->key()); next >= 0) return GoTo(next);
            QWidget::keyPressEvent(event);
    }
}

void Chart::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? MarkAt(event->position()) : -1;
    if (pressed_ >= 0) GoTo(pressed_);
}

// A finger that swipes the page ends elsewhere.
void Chart::mouseReleaseEvent(QMouseEvent* event) {
    const int released = event->button() == Qt::LeftButton ? MarkAt(event->position()) : -1;
    if (released >= 0 && released == std::exchange(pressed_, -1)) Q_EMIT Chosen(released);
}

void Chart::mouseMoveEvent(QMouseEvent* event) {
    const int mark = MarkAt(event->position());
    if (mark == pointedAt_) return;
    pointedAt_ = mark;
    update();
}

void Chart::leaveEvent(QEvent* event) {
    pointedAt_ = -1;
    update();
    QWidget::leaveEvent(event);
}

void Chart::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (current_ >= 0 && current_ < Marks()) GoTo(current_);
}

void Chart::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace manager
