#pragma once

#include <QPainter>
#include <QSizeF>

#include "manager/labels/Dots.h"

namespace manager {

// Pages as they are printed and previewed alike.
class PrintedPages {
public:
    virtual ~PrintedPages() = default;

    // In millimetres.
    virtual QSizeF Paper() const = 0;
    virtual int Count() const = 0;
    virtual Dots Measure() const = 0;
    // The painter's unit is a part of a dot, and 0, 0 the corner of the paper.
    virtual void Paint(QPainter& painter, int page) const = 0;
};

// To the default printer, or as a PDF: of this name, or where there is no printer under "printouts". Gives the path of
// a PDF. Failures throw OutputError.
QString PrintPages(const PrintedPages& pages, const QString& pdfPath = {});

}  // namespace manager
