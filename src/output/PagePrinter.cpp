#include "output/PagePrinter.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>

#include "output/Channel.h"
#include "output/Folder.h"
#include "values/Clock.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr double DefaultFontSize = 9;
constexpr double LargestFontSize = 500;
constexpr double PdfMarginMm = 12;

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

QString NewPdfPath() {
    const QString folder = InProgramFolder(u"printouts"_s);
    if (!QDir().mkpath(folder)) throw OutputError(values::PathNotFound, u"Cannot make the folder "_s + folder + u'.');
    const QString begin = folder + u'/' + values::Now().toString(u"yyyyMMdd-hhmmss"_s) + u'-';
    int number = 1;
    while (QFileInfo::exists(begin + QString::number(number) + u".pdf"_s)) ++number;
    return begin + QString::number(number) + u".pdf"_s;
}

void SavePdf(const QByteArray& pdf) {
    QSaveFile file(NewPdfPath());
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() && file.flush() && file.commit();
    if (!isSaved)
        throw OutputError(values::DeviceError, u"Cannot write "_s + file.fileName() + u": "_s + file.errorString());
}

}  // namespace

// Either a print job of the system or a PDF, which is kept in memory until it is whole.
struct PagePrinter::Job {
    QBuffer pdf;
    std::unique_ptr<QPagedPaintDevice> device;
    QPainter painter;  // behind the device, since it must end before it
    double y = 0;

    explicit Job(const QPageLayout& paper);
    bool Holds(const QFont& font) const;
    void Print(const QString& line, const QFont& font);
    void End();
    bool DeviceFailed() const;
};

PagePrinter::Job::Job(const QPageLayout& paper) {
    if (const QPrinterInfo standard = QPrinterInfo::defaultPrinter(); !standard.isNull()) {
        device = std::make_unique<QPrinter>(standard, QPrinter::HighResolution);
    } else {
        pdf.open(QIODevice::WriteOnly);
        device = std::make_unique<QPdfWriter>(&pdf);
    }
    device->setPageLayout(paper);
    if (!painter.begin(device.get()))
        throw OutputError(values::DeviceUnavailable, u"The page printer cannot be used."_s);
}

bool PagePrinter::Job::DeviceFailed() const {
    const auto* printer = dynamic_cast<const QPrinter*>(device.get());
    return printer && (printer->printerState() == QPrinter::Error || printer->printerState() == QPrinter::Aborted);
}

bool PagePrinter::Job::Holds(const QFont& font) const {
    const QFontMetricsF metrics(font, device.get());
    return metrics.height() <= device->height() && metrics.horizontalAdvance(u'0') <= device->width();
}

void PagePrinter::Job::Print(const QString& line, const QFont& font) {
    const QFontMetricsF metrics(font, device.get());
    if (y > 0 && y + metrics.height() > device->height()) {
        if (!device->newPage()) throw OutputError(values::DeviceError, u"The page printer takes no further page."_s);
        y = 0;
    }
    painter.setFont(font);
    painter.drawText(QPointF(0, y + metrics.ascent()), line);
    y += metrics.lineSpacing();
}

void PagePrinter::Job::End() {
    if (!painter.end() || DeviceFailed()) throw OutputError(values::DeviceError, u"The page printer failed."_s);
    if (pdf.isOpen()) SavePdf(pdf.data());
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
    if (paper_.isValid()) return paper_;
    if (const QPrinterInfo standard = QPrinterInfo::defaultPrinter(); !standard.isNull())
        return QPrinter(standard, QPrinter::HighResolution).pageLayout();
    const QMarginsF margins(PdfMarginMm, PdfMarginMm, PdfMarginMm, PdfMarginMm);
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, margins, QPageLayout::Millimeter};
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
    if (const auto job = std::move(job_)) job->End();
}

void PagePrinter::Abandon() {
    if (job_) {
        if (auto* printer = dynamic_cast<QPrinter*>(job_->device.get())) printer->abort();
    }
    job_.reset();
}

PagePrinter& ThePagePrinter() {
    static PagePrinter printer;
    return printer;
}

}  // namespace output
