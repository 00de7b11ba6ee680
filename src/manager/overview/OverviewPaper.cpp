#include "manager/overview/OverviewPaper.h"

namespace manager {

namespace {

constexpr double PageWidth = 760;
constexpr double Gap = 14;
constexpr double BoxHeight = 92;
constexpr int Columns = 3;

class Sheet {
public:
    Sheet(output::PageDevice& pages, const ChartLook& look) : pages_(pages), look_(look) { BeginPage(); }

    double Height() const { return pages_.Device().height() / scale_; }
    double Y() const { return y_; }
    void Advance(double height) { y_ += height; }

    void MakeRoom(double height) {
        if (y_ == 0 || y_ + height <= Height()) return;
        pages_.Painter().restore();
        pages_.NewPage();
        BeginPage();
    }

    void Text(const QRectF& place, const QString& text, int pixels, const QColor& colour, bool isBold = false) {
        QFont font = look_.text;
        font.setPixelSize(pixels);
        font.setBold(isBold);
        pages_.Painter().setFont(font);
        pages_.Painter().setPen(colour);
        pages_.Painter().drawText(place, Qt::AlignLeft | Qt::AlignTop,
                                  QFontMetricsF(font).elidedText(text, Qt::ElideRight, place.width()));
    }

    // The place of columns side by side.
    static QRectF PlaceOf(double top, int first, int columns, double height) {
        constexpr double width = (PageWidth - (Columns - 1) * Gap) / Columns;
        return {first * (width + Gap), top, columns * width + (columns - 1) * Gap, height};
    }

private:
    void BeginPage() {
        QPainter& painter = pages_.Painter();
        scale_ = pages_.Device().width() / PageWidth;
        painter.save();
        painter.scale(scale_, scale_);
        y_ = 0;
    }

    output::PageDevice& pages_;
    const ChartLook& look_;
    double scale_ = 1;
    double y_ = 0;
};

}  // namespace

void OverviewPaper::PaintOn(output::PageDevice& pages) const {
    const ChartLook look = ChartLook::OfPaper();
    Sheet sheet(pages, look);
    QPainter& painter = pages.Painter();
    sheet.Text({0, 0, PageWidth, 30}, title, 22, look.ink, true);
    sheet.Text({0, 30, PageWidth, 20}, subtitle, 13, look.muted);
    sheet.Advance(62);
    for (size_t box = 0; box < boxes.size(); ++box) {
        const QRectF place = Sheet::PlaceOf(sheet.Y(), static_cast<int>(box), 1, BoxHeight);
        painter.setPen(QPen(look.line, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(place, 5, 5);
        const QRectF inner = place.adjusted(10, 8, -10, -6);
        sheet.Text(inner, boxes[box].title, 12, look.muted);
        sheet.Text(inner.adjusted(0, 16, 0, 0), boxes[box].figure, 22, look.ink, true);
        double top = 46;
        for (const QString& note : boxes[box].notes)
            sheet.Text(inner.adjusted(0, std::exchange(top, top + 16), 0, 0), note, 11, look.muted);
    }
    sheet.Advance(BoxHeight + Gap);
    int column = 0;
    double rowHeight = 0;
    for (const Plate& plate : plates) {
        if (column + plate.columns > Columns) {
            sheet.Advance(rowHeight);
            column = 0;
            rowHeight = 0;
        }
        constexpr double titleHeight = 20;
        if (column == 0) sheet.MakeRoom(titleHeight + plate.height);
        const QRectF place = Sheet::PlaceOf(sheet.Y(), column, plate.columns, titleHeight + plate.height);
        sheet.Text(place, plate.title, 13, look.muted, true);
        plate.chart->PaintOn(painter, place.adjusted(0, titleHeight, 0, 0), look);
        rowHeight = std::max(rowHeight, place.height() + Gap);
        column += plate.columns;
    }
    painter.restore();
}

}  // namespace manager
