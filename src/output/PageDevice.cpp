#include "output/PageDevice.h"

#include <QDir>
#include <QFileInfo>
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

constexpr double PdfMarginMm = 12;

QString NewPdfPath() {
    const QString folder = InProgramFolder(u"printouts"_s);
    if (!QDir().mkpath(folder)) throw OutputError(values::PathNotFound, u"Cannot make the folder "_s + folder + u'.');
    const QString begin = folder + u'/' + values::Now().toString(u"yyyyMMdd-hhmmss"_s) + u'-';
    int number = 1;
    while (QFileInfo::exists(begin + QString::number(number) + u".pdf"_s)) ++number;
    return begin + QString::number(number) + u".pdf"_s;
}

void SavePdf(const QString& path, const QByteArray& pdf) {
    QSaveFile file(path);
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() && file.flush() && file.commit();
    if (!isSaved)
        throw OutputError(values::DeviceError, u"Cannot write "_s + file.fileName() + u": "_s + file.errorString());
}

bool DeviceFailed(const QPagedPaintDevice& device) {
    const auto* printer = dynamic_cast<const QPrinter*>(&device);
    return printer && (printer->printerState() == QPrinter::Error || printer->printerState() == QPrinter::Aborted);
}

}  // namespace

PageDevice::PageDevice(const QPageLayout& paper, int resolution) {
    if (const QPrinterInfo standard = QPrinterInfo::defaultPrinter(); !standard.isNull())
        device_ = std::make_unique<QPrinter>(standard, QPrinter::HighResolution);
    Begin(paper, resolution);
}

PageDevice::PageDevice(const QString& pdfPath, const QPageLayout& paper, int resolution) : pdfPath_(pdfPath) {
    Begin(paper, resolution);
}

void PageDevice::Begin(const QPageLayout& paper, int resolution) {
    if (!device_) {
        pdf_.open(QIODevice::WriteOnly);
        device_ = std::make_unique<QPdfWriter>(&pdf_);
    }
    device_->setPageLayout(paper);
    if (auto* pdf = dynamic_cast<QPdfWriter*>(device_.get()); pdf && resolution > 0) pdf->setResolution(resolution);
    if (auto* printer = dynamic_cast<QPrinter*>(device_.get()); printer && resolution > 0)
        printer->setResolution(resolution);
    if (!painter_.begin(device_.get()))
        throw OutputError(values::DeviceUnavailable, u"The page printer cannot be used."_s);
}

QPageLayout PageDevice::UsualPaper() {
    if (const QPrinterInfo standard = QPrinterInfo::defaultPrinter(); !standard.isNull())
        return QPrinter(standard, QPrinter::HighResolution).pageLayout();
    const QMarginsF margins(PdfMarginMm, PdfMarginMm, PdfMarginMm, PdfMarginMm);
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, margins, QPageLayout::Millimeter};
}

void PageDevice::NewPage() {
    if (!device_->newPage()) throw OutputError(values::DeviceError, u"The page printer takes no further page."_s);
}

void PageDevice::End() {
    if (!painter_.end() || DeviceFailed(*device_))
        throw OutputError(values::DeviceError, u"The page printer failed."_s);
    if (!pdf_.isOpen()) return;
    if (pdfPath_.isEmpty()) pdfPath_ = NewPdfPath();
    SavePdf(pdfPath_, pdf_.data());
}

void PageDevice::Abandon() {
    if (auto* printer = dynamic_cast<QPrinter*>(device_.get())) printer->abort();
}

}  // namespace output
