#include "manager/labels/LabelText.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <vector>

namespace manager {

namespace {

constexpr int StepsOfSize = 24;

// Where each line begins.
std::vector<int> Wrap(const QString& text, const QFont& font, int width) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    std::vector<int> starts;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        starts.push_back(line.textStart());
    }
    layout.endLayout();
    return starts;
}

bool BreaksAWord(const QString& text, const std::vector<int>& starts) {
    return std::ranges::any_of(starts, [&](int start) { return start > 0 && !text[start - 1].isSpace(); });
}

// From the largest to the smallest.
template <typename Fits>
int LargestSize(int smallest, int largest, Fits fits) {
    for (int step = 0; step < StepsOfSize; ++step) {
        const int size = largest - (largest - smallest) * step / StepsOfSize;
        if (fits(size)) return size;
    }
    return smallest;
}

}  // namespace

QFont LabelFont(int pixels, bool isBold) {
    QFont font;
    font.setPixelSize(std::max(1, pixels));
    font.setBold(isBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

int LineHeight(const QFont& font) {
    return static_cast<int>(std::ceil(QFontMetricsF(font).height()));
}

int TextWidth(const QFont& font, const QString& text) {
    return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(text)));
}

FittedText FitLine(const QString& text, int width, int smallest, int largest, bool isBold) {
    const int size =
        LargestSize(smallest, largest, [&](int each) { return TextWidth(LabelFont(each, isBold), text) <= width; });
    const QFont font = LabelFont(size, isBold);
    const bool fits = TextWidth(font, text) <= width;
    return {font, {fits ? text : QFontMetricsF(font).elidedText(text, Qt::ElideRight, width)}};
}

FittedText FitLines(const QString& text, QSize place, int smallest, int largest, int mostLines) {
    const auto linesOf = [&](int size) {
        return std::min(mostLines, std::max(1, place.height() / LineHeight(LabelFont(size, true))));
    };
    const auto fits = [&](int size, bool mayBreak) {
        const std::vector<int> starts = Wrap(text, LabelFont(size, true), place.width());
        return std::ssize(starts) <= linesOf(size) && (mayBreak || !BreaksAWord(text, starts));
    };
    int size = LargestSize(smallest, largest, [&](int each) { return fits(each, false); });
    if (!fits(size, false)) size = LargestSize(smallest, largest, [&](int each) { return fits(each, true); });
    const QFont font = LabelFont(size, true);
    const std::vector<int> starts = Wrap(text, font, place.width());
    const size_t most = std::min(starts.size(), static_cast<size_t>(linesOf(size)));
    QStringList lines;
    for (size_t i = 0; i < most; ++i) {
        const bool takesRest = i + 1 == most;
        const QString line = takesRest ? text.mid(starts[i]) : text.mid(starts[i], starts[i + 1] - starts[i]).trimmed();
        lines.append(takesRest ? QFontMetricsF(font).elidedText(line, Qt::ElideRight, place.width()) : line);
    }
    return {font, lines};
}

void DrawLines(QPainter& painter, const QRect& place, Qt::Alignment align, const FittedText& text) {
    painter.setFont(text.font);
    const int height = LineHeight(text.font);
    const int all = height * static_cast<int>(text.lines.size());
    int top = place.top();
    if (align & Qt::AlignBottom) top = place.top() + place.height() - all;
    if (align & Qt::AlignVCenter) top = place.top() + (place.height() - all) / 2;
    const double ascent = QFontMetricsF(text.font).ascent();
    for (const QString& line : text.lines) {
        const int slack = place.width() - TextWidth(text.font, line);
        const int left = align & Qt::AlignRight ? slack : align & Qt::AlignHCenter ? slack / 2 : 0;
        painter.drawText(QPointF(place.left() + left, top + ascent), line);
        top += height;
    }
}

}  // namespace manager
