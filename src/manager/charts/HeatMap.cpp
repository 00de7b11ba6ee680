#include "manager/charts/HeatMap.h"

#include <algorithm>
#include <cmath>

#include "manager/Texts.h"
#include "manager/charts/Scale.h"

using namespace Qt::StringLiterals;

namespace manager {

using values::Money;

namespace {

constexpr double Gap = 2;
constexpr double Faintest = 0.06;  // of a cell in which nothing was sold
constexpr double LeastOfSold = 0.16;

}  // namespace

HeatMap::HeatMap(QWidget* parent) : Chart(parent) {}

void HeatMap::Show(Content content) {
    content_ = std::move(content);
    const auto highest = std::ranges::max_element(content_.cells);
    highest_ = highest == content_.cells.end() ? Money() : *highest;
    if (highest_ <= Money()) content_.cells.clear();
    FiguresChanged();
}

// A row a cell, since so many columns are not to be read.
ChartTable HeatMap::Table() const {
    ChartTable table{{content_.rowHeading, content_.columnHeading, content_.amountName}, {}};
    for (int mark = 0; mark < Marks(); ++mark)
        if (const Money amount = content_.cells[static_cast<size_t>(mark)]; amount != Money())
            table.rows.push_back({content_.rows[RowOf(mark)], content_.columns[ColumnOf(mark)], amount});
    return table;
}

QString HeatMap::MarkText(int mark) const {
    return tr("%1, %2: %3")
        .arg(content_.rows[RowOf(mark)], content_.columns[ColumnOf(mark)],
             AmountText(content_.cells[static_cast<size_t>(mark)]));
}

QRectF HeatMap::GridOf(const QRectF& body, const ChartLook& look) const {
    const QFontMetricsF metrics(look.text);
    double widest = 0;
    for (const QString& row : content_.rowLabels) widest = std::max(widest, metrics.horizontalAdvance(row));
    return body.adjusted(widest + 8, 0, 0, -metrics.height() - 2);
}

QRectF HeatMap::MarkPlace(const QRectF& body, const ChartLook& look, int mark) const {
    const QRectF grid = GridOf(body, look);
    const double width = grid.width() / Columns();
    const double height = grid.height() / static_cast<double>(content_.rows.size());
    return {grid.left() + ColumnOf(mark) * width, grid.top() + RowOf(mark) * height, width, height};
}

int HeatMap::Neighbour(int mark, int key) const {
    if (key == Qt::Key_Up) return mark >= Columns() ? mark - Columns() : mark;
    if (key == Qt::Key_Down) return mark + Columns() < Marks() ? mark + Columns() : mark;
    return Chart::Neighbour(mark, key);
}

void HeatMap::PaintMarks(QPainter& painter, const QRectF& body, const ChartLook& look, int lit) const {
    const QFontMetricsF metrics(look.text);
    const QRectF grid = GridOf(body, look);
    for (int mark = 0; mark < Marks(); ++mark) {
        const QRectF cell = MarkPlace(body, look, mark).adjusted(Gap / 2, Gap / 2, -Gap / 2, -Gap / 2);
        const Money amount = content_.cells[static_cast<size_t>(mark)];
        // By the root, so that quiet hours can be told from one another too.
        const double part = static_cast<double>(amount.Units()) / static_cast<double>(highest_.Units());
        const double strength = amount <= Money() ? Faintest : LeastOfSold + (1 - LeastOfSold) * std::sqrt(part);
        painter.setPen(mark == lit ? QPen(look.ink, 2) : QPen(Qt::NoPen));
        painter.setBrush(look.Tint(strength));
        painter.drawRoundedRect(cell, 3, 3);
    }
    painter.setPen(look.muted);
    const double height = grid.height() / static_cast<double>(content_.rows.size());
    for (int row = 0; row < content_.rows.size(); ++row)
        painter.drawText(QRectF(body.left(), grid.top() + row * height, grid.left() - body.left() - 8, height),
                         Qt::AlignRight | Qt::AlignVCenter, content_.rowLabels[row]);
    const int every = EveryHowMany(grid.width(), Columns(), metrics.horizontalAdvance(u"00"_s) + 8);
    const double width = grid.width() / Columns();
    for (int column = 0; column < Columns(); column += every)
        painter.drawText(QRectF(grid.left() + column * width - 20, grid.bottom() + 2, width + 40, metrics.height()),
                         Qt::AlignHCenter | Qt::AlignTop, content_.columnLabels[column]);
}

}  // namespace manager
