#include "manager/charts/ColumnChart.h"

#include <QPainterPath>
#include <algorithm>

#include "manager/Texts.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace manager {

using values::Money;

namespace {

constexpr double BarsOfPlace = 0.72;
constexpr double WidestBar = 44;
constexpr double BeforeStrength = 0.3;

QString AxisText(Money amount) {
    const bool isWhole = amount.Units() % Money::Scale == 0;
    return values::Format(amount, isWhole ? u"###,###,##0" : u"###,###,##0.00");
}

double HeightIn(const QRectF& plot, const Scale& scale, Money amount) {
    return plot.bottom() - plot.height() * scale.PartOf(amount);
}

}  // namespace

ColumnChart::ColumnChart(QWidget* parent) : Chart(parent) {}

void ColumnChart::Show(Content content) {
    content_ = std::move(content);
    Money lowest, highest;
    bool isEmpty = true;
    for (const Column& column : content_.columns) {
        for (const Money amount : {column.amount, HasBefore() ? column.before : Money()}) {
            lowest = std::min(lowest, amount);
            highest = std::max(highest, amount);
        }
        isEmpty = isEmpty && column.amount == Money();
    }
    if (isEmpty) content_.columns.clear();
    scale_ = Scale(lowest, highest);
    FiguresChanged();
}

ChartTable ColumnChart::Table() const {
    ChartTable table{{content_.heading, content_.amountName}, {}};
    if (HasBefore()) table.headings << content_.beforeName;
    for (const Column& column : content_.columns) {
        table.rows.push_back({column.name, column.amount});
        if (HasBefore()) table.rows.back().push_back(column.before);
    }
    return table;
}

int ColumnChart::Marks() const {
    return static_cast<int>(content_.columns.size());
}

QString ColumnChart::MarkText(int mark) const {
    const Column& column = content_.columns[static_cast<size_t>(mark)];
    if (!HasBefore()) return tr("%1: %2").arg(column.name, AmountText(column.amount));
    return tr("%1: %2, before %3").arg(column.name, AmountText(column.amount), AmountText(column.before));
}

void ColumnChart::Legend(QPainter& painter, const QRectF& head, const ChartLook& look) const {
    if (!HasBefore()) return;
    const QFontMetricsF metrics(look.text);
    double right = head.right();
    const double size = metrics.ascent() * 0.8;
    for (const bool isBefore : {true, false}) {
        const QString name = isBefore ? content_.beforeName : content_.amountName;
        right -= metrics.horizontalAdvance(name);
        painter.setPen(look.muted);
        painter.drawText(QPointF(right, head.top() + metrics.ascent()), name);
        right -= size + 5;
        const QRectF box(right, head.top() + metrics.ascent() - size, size, size);
        painter.fillRect(box, isBefore ? look.Tint(BeforeStrength) : look.accent);
        right -= 14;
    }
}

QRectF ColumnChart::PlotOf(const QRectF& body, const ChartLook& look) const {
    const QFontMetricsF metrics(look.text);
    const double figures = std::max(metrics.horizontalAdvance(AxisText(scale_.Top())),
                                    metrics.horizontalAdvance(AxisText(scale_.Bottom())));
    return body.adjusted(figures + 8, metrics.height() / 2, -4, -metrics.height() - 4);
}

QRectF ColumnChart::MarkPlace(const QRectF& body, const ChartLook& look, int mark) const {
    const QRectF plot = PlotOf(body, look);
    const double width = plot.width() / Marks();
    return {plot.left() + mark * width, plot.top(), width, plot.height()};
}

// The whole height of a column, so that a low bar is hit as well.
int ColumnChart::MarkIn(const QRectF& body, const ChartLook& look, QPointF point) const {
    if (point.y() < body.top() || point.y() > body.bottom()) return -1;
    const QRectF plot = PlotOf(body, look);
    return PlaceIn(plot.left(), plot.width(), Marks(), point.x());
}

void ColumnChart::PaintAxes(QPainter& painter, const QRectF& body, const QRectF& plot, const ChartLook& look) const {
    const QFontMetricsF metrics(look.text);
    for (const Money step : scale_.Steps()) {
        const double y = HeightIn(plot, scale_, step);
        painter.setPen(QPen(look.line, step == Money() ? 1.5 : 0.7));
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter.setPen(look.muted);
        painter.drawText(QRectF(body.left(), y - metrics.height(), plot.left() - body.left() - 6, 2 * metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, AxisText(step));
    }
    double widest = 0;
    for (const Column& column : content_.columns) widest = std::max(widest, metrics.horizontalAdvance(column.label));
    const int every = EveryHowMany(plot.width(), Marks(), widest + 8);
    for (int mark = 0; mark < Marks(); mark += every) {
        const double middle = plot.left() + (mark + 0.5) * plot.width() / Marks();
        painter.drawText(QRectF(middle - widest, body.bottom() - metrics.height(), 2 * widest, metrics.height()),
                         Qt::AlignHCenter | Qt::AlignBottom, content_.columns[static_cast<size_t>(mark)].label);
    }
}

void ColumnChart::PaintBars(QPainter& painter, const QRectF& plot, const ChartLook& look, int lit) const {
    const double place = plot.width() / Marks();
    const double zero = HeightIn(plot, scale_, {});
    const int series = HasBefore() ? 2 : 1;
    const double width = std::min(place * BarsOfPlace / series, WidestBar);
    painter.setPen(Qt::NoPen);
    for (int mark = 0; mark < Marks(); ++mark) {
        const Column& column = content_.columns[static_cast<size_t>(mark)];
        const double left = plot.left() + mark * place + (place - series * width) / 2;
        const auto bar = [&](int number, Money amount, const QColor& colour) {
            const double y = HeightIn(plot, scale_, amount);
            painter.fillRect(QRectF(left + number * width, std::min(y, zero), width, std::abs(zero - y)), colour);
        };
        if (HasBefore()) bar(0, column.before, look.Tint(BeforeStrength));
        bar(series - 1, column.amount, mark == lit ? look.ink : look.accent);
    }
}

void ColumnChart::PaintLines(QPainter& painter, const QRectF& plot, const ChartLook& look, int lit) const {
    const auto point = [&](int mark, Money amount) {
        return QPointF(plot.left() + (mark + 0.5) * plot.width() / Marks(), HeightIn(plot, scale_, amount));
    };
    const auto draw = [&](Money Column::*amount, const QPen& pen) {
        QPolygonF line;
        for (int mark = 0; mark < Marks(); ++mark)
            line << point(mark, content_.columns[static_cast<size_t>(mark)].*amount);
        painter.setPen(pen);
        painter.drawPolyline(line);
    };
    painter.setBrush(Qt::NoBrush);
    if (HasBefore()) draw(&Column::before, QPen(look.Tint(BeforeStrength + 0.15), 1.5));
    draw(&Column::amount, QPen(look.accent, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (lit < 0) return;
    const QPointF at = point(lit, content_.columns[static_cast<size_t>(lit)].amount);
    painter.setPen(QPen(look.line, 1));
    painter.drawLine(QPointF(at.x(), plot.top()), QPointF(at.x(), plot.bottom()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.ink);
    painter.drawEllipse(at, 4.5, 4.5);
}

void ColumnChart::PaintMarks(QPainter& painter, const QRectF& body, const ChartLook& look, int lit) const {
    const QRectF plot = PlotOf(body, look);
    PaintAxes(painter, body, plot, look);
    if (content_.columns.size() <= MostBars)
        PaintBars(painter, plot, look, lit);
    else
        PaintLines(painter, plot, look, lit);
}

}  // namespace manager
