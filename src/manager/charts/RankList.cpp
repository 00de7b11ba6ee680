#include "manager/charts/RankList.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace manager {

using values::Money;

namespace {

constexpr double BarHeight = 4;
constexpr double Gap = 8;

}  // namespace

RankList::RankList(QWidget* parent) : Chart(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RankList::Show(Content content) {
    content_ = std::move(content);
    longest_ = {};
    for (int row = 0; row < Marks(); ++row)
        longest_ = std::max(longest_, content_.rows[static_cast<size_t>(row)].length);
    FiguresChanged();
}

void RankList::SetRows(int rows) {
    rowsShown_ = rows;
    updateGeometry();
}

double RankList::HeightOf(int rows, const ChartLook& look) const {
    return rows * (QFontMetricsF(look.text).height() + BarHeight + Gap);
}

ChartTable RankList::Table() const {
    ChartTable table{content_.headings, {}, content_.numbers};
    for (const Row& row : content_.rows) table.rows.push_back(row.cells);
    return table;
}

int RankList::Marks() const {
    return std::min(rowsShown_, static_cast<int>(content_.rows.size()));
}

QString RankList::MarkText(int mark) const {
    const Row& row = content_.rows[static_cast<size_t>(mark)];
    return tr("%1: %2").arg(row.name, row.figure);
}

QSize RankList::sizeHint() const {
    return {220, static_cast<int>(HeightOf(rowsShown_, ChartLook::OfTheme())) + 6};
}

QRectF RankList::MarkPlace(const QRectF& body, const ChartLook& look, int mark) const {
    const double height = HeightOf(1, look);
    return {body.left(), body.top() + mark * height, body.width(), height};
}

void RankList::PaintMarks(QPainter& painter, const QRectF& body, const ChartLook& look, int lit) const {
    const QFontMetricsF metrics(look.text);
    for (int mark = 0; mark < Marks(); ++mark) {
        const Row& row = content_.rows[static_cast<size_t>(mark)];
        const QRectF place = MarkPlace(body, look, mark).adjusted(4, 0, -4, 0);
        const double figure = metrics.horizontalAdvance(row.figure);
        const double base = place.top() + 2 + metrics.ascent();
        painter.setPen(look.ink);
        painter.drawText(QPointF(place.right() - figure, base), row.figure);
        painter.drawText(QPointF(place.left(), base),
                         metrics.elidedText(row.name, Qt::ElideRight, place.width() - figure - 10));
        const QRectF track(place.left(), base + metrics.descent() + 1, place.width(), BarHeight);
        painter.fillRect(track, look.Tint(0.08));
        if (longest_ <= Money() || row.length <= Money()) continue;
        const double part = static_cast<double>(row.length.Units()) / static_cast<double>(longest_.Units());
        painter.fillRect(QRectF(track.left(), track.top(), track.width() * std::min(part, 1.0), track.height()),
                         mark == lit ? look.ink : look.accent);
    }
}

}  // namespace manager
