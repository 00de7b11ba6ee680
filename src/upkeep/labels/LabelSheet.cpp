#include "upkeep/labels/LabelSheet.h"

#include "upkeep/Words.h"

namespace upkeep {

namespace {

constexpr double InsideLabel = 1.5, InsideLargeLabel = 2.5, LargeLabel = 45;
constexpr double EdgeOfPaper = 5;  // of a usual office printer
constexpr double SmallestWidth = 20, SmallestHeight = 12, LargestSide = 300;
constexpr double Tolerance = 0.1;

// Labels without gaps, in the middle of an A4 sheet.
LabelSheet Filled(double width, double height, int columns, int rows) {
    return {.paper = A4,
            .label = {width, height},
            .columns = columns,
            .rows = rows,
            .first = {(A4.width() - columns * width) / 2, (A4.height() - rows * height) / 2},
            .gap = {0, 0}};
}

}  // namespace

LabelSheet SingleLabel(QSizeF label) {
    return {.paper = label, .label = label, .first = {0, 0}, .gap = {0, 0}};
}

const std::vector<LabelSheet>& CommonSheets() {
    static const std::vector<LabelSheet> sheets{
        Filled(52.5, 29.7, 4, 10),
        Filled(70, 37, 3, 8),
        Filled(70, 42.3, 3, 7),
        {.paper = A4, .label = {63.5, 38.1}, .columns = 3, .rows = 7, .first = {7.2, 15.1}, .gap = {2.55, 0}},
        Filled(105, 57, 2, 5),
        SingleLabel({57, 32}),
        SingleLabel({62, 29}),
        SingleLabel({40, 30}),
    };
    return sheets;
}

QString FaultOf(const LabelSheet& sheet) {
    if (sheet.label.width() < SmallestWidth || sheet.label.height() < SmallestHeight)
        return Words::tr("A label is at least %1 mm wide and %2 mm high.").arg(SmallestWidth).arg(SmallestHeight);
    if (sheet.label.width() > LargestSide || sheet.label.height() > LargestSide)
        return Words::tr("A label is at most %1 mm wide and high.").arg(LargestSide);
    if (sheet.columns < 1 || sheet.rows < 1) return Words::tr("A sheet has at least one label.");
    const QRectF last = CellOf(sheet, sheet.Count() - 1);
    if (last.right() > sheet.paper.width() + Tolerance)
        return Words::tr("The labels side by side are %1 mm wide; the sheet has %2 mm.")
            .arg(last.right(), 0, 'f', 1)
            .arg(sheet.paper.width());
    if (last.bottom() > sheet.paper.height() + Tolerance)
        return Words::tr("The labels one below the other are %1 mm high; the sheet has %2 mm.")
            .arg(last.bottom(), 0, 'f', 1)
            .arg(sheet.paper.height());
    return {};
}

QRectF CellOf(const LabelSheet& sheet, int place) {
    const int column = place % sheet.columns, row = place / sheet.columns;
    return {QPointF(sheet.first.x() + column * (sheet.label.width() + sheet.gap.width()),
                    sheet.first.y() + row * (sheet.label.height() + sheet.gap.height())),
            sheet.label};
}

QRectF PrintableOf(const LabelSheet& sheet, int place) {
    const double inside = sheet.label.height() >= LargeLabel ? InsideLargeLabel : InsideLabel;
    const QRectF cell = CellOf(sheet, place).adjusted(inside, inside, -inside, -inside);
    if (sheet.IsSingle()) return cell;
    return cell.intersected(
        QRectF(QPointF(), sheet.paper).adjusted(EdgeOfPaper, EdgeOfPaper, -EdgeOfPaper, -EdgeOfPaper));
}

int SheetsFor(const LabelSheet& sheet, int labels, int firstPlace) {
    if (labels <= 0) return 0;
    return (firstPlace + labels + sheet.Count() - 1) / sheet.Count();
}

}  // namespace upkeep
