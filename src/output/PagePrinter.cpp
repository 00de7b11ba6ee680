#include "output/PagePrinter.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include "output/PageDevice.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr double DefaultFontSize = 9;
constexpr double LargestFontSize = 500;

// The columns of a receipt need a fixed pitch: a font that the system lacks gives way to its own fixed one.
QFont LineFont(const QString& name, double points) {
    const bool isBold = name.endsWith(u" Bold") && !QFontDatabase::hasFamily(name);
    QFont font(isBold ? name.chopped(5) : name);
    font.setStyleHint(QFont::Monospace);
    if (!QFontInfo(font).fixedPitch()) font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (isBold) font.setBold(true);
    font.setPointSizeF(points);
    return font;
}

}  // namespace

struct PagePrinter::Job {
    PageDevice page;
    double y = 0;

    explicit Job(const QPageLayout& paper) : page(paper) {}
    bool Holds(const QFont& font) const;
    void Print(const QString& line, const QFont& font);
};

bool PagePrinter::Job::Holds(const QFont& font) const {
    const QPagedPaintDevice& device = page.Device();
    const QFontMetricsF metrics(font, &page.Device());
    return metrics.height() <= device.height() && metrics.horizontalAdvance(u'0') <= device.width();
}

void PagePrinter::Job::Print(const QString& line, const QFont& font) {
    const QFontMetricsF metrics(font, &page.Device());
    if (y > 0 && y + metrics.height() > page.Device().height()) {
        page.NewPage();
        y = 0;
    }
    page.Painter().setFont(font);
    page.Painter().drawText(QPointF(0, y + metrics.ascent()), line);
    y += metrics.lineSpacing();
}

PagePrinter::PagePrinter() = default;
PagePrinter::~PagePrinter() = default;

void PagePrinter::SetFontName(const QString& name) {
    fontName_ = name;
}

void PagePrinter::SetFontSize(double points) {
    fontSize_ = points > 0 && points <= LargestFontSize ? points : DefaultFontSize;
}

void PagePrinter::SetPaper(const QPageLayout& paper) {
    paper_ = paper;
}

QPageLayout PagePrinter::Paper() const {
    return paper_.isValid() ? paper_ : PageDevice::UsualPaper();
}

void PagePrinter::PrintLine(const QString& line) {
    if (!job_) job_ = std::make_unique<Job>(Paper());
    QFont font = LineFont(fontName_, fontSize_);
    if (!job_->Holds(font)) font.setPointSizeF(DefaultFontSize);
    // A footer of several lines takes several lines on the page as well.
    for (QString part : line.split(u'\n')) {
        if (part.endsWith(u'\r')) part.chop(1);
        job_->Print(part, font);
    }
}

void PagePrinter::EndJob() {
    if (const auto job = std::move(job_)) job->page.End();
}

void PagePrinter::Abandon() {
    if (job_) job_->page.Abandon();
    job_.reset();
}

PagePrinter& ThePagePrinter() {
    static PagePrinter printer;
    return printer;
}

}  // namespace output
