#include "manager/overview/Chart.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "forms/Theme.h"
#include "forms/Tokens.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

constexpr int Gap = 6;  // pixels of the smallest step
constexpr int LeastColumn = 3;
constexpr double NameShare = 0.36;

QColor Mixed(const QColor& from, const QColor& to, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

}  // namespace

Chart::Chart(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void Chart::SetKind(Kind kind, int columns) {
    kind_ = kind;
    if (columns > 0) columns_ = columns;
    update();
}

void Chart::SetHeads(const QStringList& rows, const QStringList& columns) {
    rowHeads_ = rows;
    columnHeads_ = columns;
}

void Chart::SetFigures(std::vector<Figure> figures) {
    figures_ = std::move(figures);
    most_ = 0;
    for (const Figure& figure : figures_) most_ = std::max({most_, figure.value, figure.before});
    front_ = -1;
    updateGeometry();
    update();
}

void Chart::SetEmptyText(const QString& text) {
    emptyText_ = text;
}

int Chart::LineHeight() const {
    return fontMetrics().height() + forms::Scaled(Gap);
}

QSize Chart::sizeHint() const {
    const int rows = kind_ == Kind::Bars ? Count() + 1 : 8;
    return {forms::Scaled(320), rows * LineHeight()};
}

QSize Chart::minimumSizeHint() const {
    return {forms::Scaled(200), (kind_ == Kind::Bars ? 7 : 4) * LineHeight()};
}

QRect Chart::Room() const {
    return rect().adjusted(0, 0, 0, -LineHeight());
}

int Chart::NameWidth() const {
    int width = 0;
    if (kind_ == Kind::Heat)
        for (const QString& head : rowHeads_) width = std::max(width, fontMetrics().horizontalAdvance(head));
    else
        for (const Figure& figure : figures_) width = std::max(width, fontMetrics().horizontalAdvance(figure.name));
    return std::min(width + forms::Scaled(Gap), static_cast<int>(this->width() * NameShare));
}

QRect Chart::PlaceOf(int figure) const {
    const QRect room = Room();
    if (kind_ == Kind::Bars) {
        const int height = std::min(LineHeight(), room.height() / std::max(1, Count()));
        return {0, figure * height, width(), height};
    }
    if (kind_ == Kind::Columns) {
        const int left = room.width() * figure / Count(), right = room.width() * (figure + 1) / Count();
        return {left, 0, std::max(1, right - left), room.height()};
    }
    const int rows = (Count() + columns_ - 1) / columns_;
    const int names = NameWidth(), top = LineHeight();
    const int row = figure / columns_, column = figure % columns_;
    const int left = names + (room.width() - names) * column / columns_;
    const int right = names + (room.width() - names) * (column + 1) / columns_;
    const int above = top + (room.height() - top) * row / rows, below = top + (room.height() - top) * (row + 1) / rows;
    return {left, above, right - left - 1, below - above - 1};
}

int Chart::FigureAt(const QPoint& point) const {
    for (int figure = 0; figure < Count(); ++figure)
        if (PlaceOf(figure).contains(point)) return figure;
    return -1;
}

void Chart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(forms::TheTokens().Muted);
    if (most_ <= 0) {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
        return;
    }
    if (kind_ == Kind::Bars) PaintBars(painter);
    if (kind_ == Kind::Columns) PaintColumns(painter);
    if (kind_ == Kind::Heat) PaintHeat(painter);
    PaintTold(painter);
}

void Chart::PaintBars(QPainter& painter) const {
    const forms::Tokens& tokens = forms::TheTokens();
    const int names = NameWidth(), gap = forms::Scaled(Gap);
    int figures = 0;
    for (const Figure& figure : figures_) figures = std::max(figures, fontMetrics().horizontalAdvance(figure.told));
    const int room = std::max(0, width() - names - figures - 2 * gap);
    for (int i = 0; i < Count(); ++i) {
        const Figure& figure = At(i);
        const QRect place = PlaceOf(i);
        if (i == front_) painter.fillRect(place, tokens.ChosenRow);
        painter.setPen(tokens.Ink);
        painter.drawText(place.adjusted(0, 0, names - place.width(), 0), Qt::AlignVCenter | Qt::AlignLeft,
                         fontMetrics().elidedText(figure.name, Qt::ElideRight, names - gap));
        const int length = std::max(figure.value > 0 ? 2 : 0, static_cast<int>(room * figure.value / most_));
        painter.fillRect(names, place.top() + gap / 2, length, place.height() - gap, tokens.Accent);
        painter.drawText(place.adjusted(names + length + gap, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, figure.told);
    }
}

void Chart::PaintColumns(QPainter& painter) const {
    const forms::Tokens& tokens = forms::TheTokens();
    const int floor = Room().height() - LineHeight();
    painter.setPen(tokens.Line);
    painter.drawLine(0, floor, width(), floor);
    int lastName = -1;
    for (int i = 0; i < Count(); ++i) {
        const Figure& figure = At(i);
        const QRect place = PlaceOf(i);
        const int height = static_cast<int>((floor - 2) * figure.value / most_);
        const int space = place.width() > 2 * LeastColumn ? place.width() / 5 : 0;
        if (i == front_) painter.fillRect(place.adjusted(0, 0, 0, floor - place.height()), tokens.ChosenRow);
        painter.fillRect(place.left() + space / 2, floor - height, place.width() - space, height, tokens.Accent);
        const int nameWidth = fontMetrics().horizontalAdvance(figure.name);
        const int left = std::clamp(place.center().x() - nameWidth / 2, 0, std::max(0, width() - nameWidth));
        if (left <= lastName) continue;
        painter.setPen(tokens.Muted);
        painter.drawText(left, floor + fontMetrics().ascent() + 2, figure.name);
        lastName = left + nameWidth + forms::Scaled(Gap);
    }
    if (std::ranges::none_of(figures_, [](const Figure& figure) { return figure.before > 0; })) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(tokens.Warning, forms::Scaled(2)));
    for (int i = 1; i < Count(); ++i) {
        if (At(i).before < 0 || At(i - 1).before < 0) continue;
        const auto point = [&](int at) {
            return QPointF(PlaceOf(at).center().x(), floor - (floor - 2) * At(at).before / most_);
        };
        painter.drawLine(point(i - 1), point(i));
    }
}

void Chart::PaintHeat(QPainter& painter) const {
    const forms::Tokens& tokens = forms::TheTokens();
    painter.setPen(tokens.Muted);
    int lastHead = -1;
    for (int column = 0; column < std::min<int>(columns_, static_cast<int>(columnHeads_.size())); ++column) {
        const QRect place = PlaceOf(column);
        const int headWidth = fontMetrics().horizontalAdvance(columnHeads_[column]);
        if (place.left() <= lastHead) continue;
        painter.drawText(place.left(), fontMetrics().ascent(), columnHeads_[column]);
        lastHead = place.left() + headWidth + 2;
    }
    const int step = PlaceOf(0).height() < fontMetrics().ascent() ? 2 : 1;  // of the names that have room
    for (int i = 0; i < Count(); ++i) {
        const QRect place = PlaceOf(i);
        if (i % (step * columns_) == 0)
            painter.drawText(0, place.center().y() + fontMetrics().ascent() / 2, rowHeads_.value(i / columns_));
        painter.fillRect(place, Mixed(tokens.Heading, tokens.Accent, At(i).value / most_));
        if (i != front_) continue;
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
}

void Chart::PaintTold(QPainter& painter) const {
    if (front_ < 0) return;
    painter.setPen(forms::TheTokens().Ink);
    const QRect line(0, height() - LineHeight(), width(), LineHeight());
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(At(front_).name + u": "_s + At(front_).told, Qt::ElideRight, width()));
}

// What is in front is told to those who can't see it, too.
void Chart::BringToFront(int figure) {
    if (figure == front_) return;
    front_ = figure;
    setAccessibleDescription(front_ < 0 ? QString() : At(front_).name + u": "_s + At(front_).told);
    update();
}

void Chart::mouseMoveEvent(QMouseEvent* event) {
    BringToFront(FigureAt(event->position().toPoint()));
}

void Chart::mouseReleaseEvent(QMouseEvent* event) {
    const int figure = FigureAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && figure >= 0) Q_EMIT Chosen(figure);
}

void Chart::leaveEvent(QEvent*) {
    if (!hasFocus()) BringToFront(-1);
}

void Chart::keyPressEvent(QKeyEvent* event) {
    const int row = kind_ == Kind::Heat ? columns_ : 1;
    int step = 0;
    switch (event->key()) {
        case Qt::Key_Left:
            step = -1;
            break;
        case Qt::Key_Right:
            step = 1;
            break;
        case Qt::Key_Up:
            step = -row;
            break;
        case Qt::Key_Down:
            step = row;
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (front_ >= 0) Q_EMIT Chosen(front_);
            return;
        default:
            return QWidget::keyPressEvent(event);
    }
    if (Count() > 0) BringToFront(std::clamp(front_ + (front_ < 0 ? 1 : step), 0, Count() - 1));
}

}  // namespace manager
