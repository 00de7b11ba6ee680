#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <vector>

namespace upkeep {

// A sheet of labels, or a single one of a label printer. Everything in millimetres.
struct LabelSheet {
    QSizeF paper;
    QSizeF label;
    int columns = 1;
    int rows = 1;
    QPointF first;  // the upper left corner of the first label
    QSizeF gap;     // between two labels

    // The paper is a label.
    bool IsSingle() const { return columns == 1 && rows == 1 && paper == label; }
    int Count() const { return columns * rows; }
};

inline const QSizeF A4(210, 297);

// Sheets as they are sold, from many small labels to few large ones, then the rolls of label printers.
const std::vector<LabelSheet>& CommonSheets();
LabelSheet SingleLabel(QSizeF label);

// Why it can't be printed on, in a sentence; empty when it can.
QString FaultOf(const LabelSheet& sheet);

// Where the label of a place lies, which counts from 0 along the rows.
QRectF CellOf(const LabelSheet& sheet, int place);
// The part of it that is printed on: away from its edge, and from that of the paper of a sheet, where no printer
// prints.
QRectF PrintableOf(const LabelSheet& sheet, int place);

// How many sheets so many labels take from a place of the first one on.
int SheetsFor(const LabelSheet& sheet, int labels, int firstPlace);

}  // namespace upkeep
