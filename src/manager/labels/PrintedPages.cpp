#include "manager/labels/PrintedPages.h"

#include <memory>

#include "output/PageDevice.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

// The whole paper, whatever margins the printer has.
QPageLayout WholePaper(QSizeF millimetres) {
    QPageLayout paper(QPageSize(millimetres, QPageSize::Millimeter, u"Labels"_s, QPageSize::FuzzyMatch),
                      QPageLayout::Portrait, QMarginsF());
    paper.setMode(QPageLayout::FullPageMode);
    return paper;
}

}  // namespace

QString PrintPages(const PrintedPages& pages, const QString& pdfPath) {
    const QPageLayout paper = WholePaper(pages.Paper());
    const int resolution = pages.Measure().PartsPerInch();
    const auto device = pdfPath.isEmpty() ? std::make_unique<output::PageDevice>(paper, resolution)
                                          : std::make_unique<output::PageDevice>(pdfPath, paper, resolution);
    try {
        for (int page = 0; page < pages.Count(); ++page) {
            if (page > 0) device->NewPage();
            QPainter& painter = device->Painter();
            painter.save();
            const double scale = double(device->Device().logicalDpiX()) / resolution;
            painter.scale(scale, scale);
            pages.Paint(painter, page);
            painter.restore();
        }
        device->End();
    } catch (...) {
        device->Abandon();
        throw;
    }
    return device->PdfPath();
}

}  // namespace manager
