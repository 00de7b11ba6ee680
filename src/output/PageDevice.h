#pragma once

#include <QBuffer>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <memory>

namespace output {

// Pages of one print, painted one after the other: a job of the system's default printer or, where there is none, a PDF
// under "printouts" in the program's folder; or a PDF of a chosen name. A PDF is kept in memory until it is whole.
// Failures throw OutputError.
class PageDevice {
public:
    // With a resolution in dots an inch, or the device's own; a printer may have another one all the same.
    explicit PageDevice(const QPageLayout& paper, int resolution = 0);
    PageDevice(const QString& pdfPath, const QPageLayout& paper, int resolution = 0);
    PageDevice(const PageDevice&) = delete;
    PageDevice& operator=(const PageDevice&) = delete;

    // What the device has of itself.
    static QPageLayout UsualPaper();

    QPagedPaintDevice& Device() const { return *device_; }
    QPainter& Painter() { return painter_; }
    void NewPage();
    void End();
    // Where a PDF lies; empty for a job of the printer.
    const QString& PdfPath() const { return pdfPath_; }
    // Drops a job of the printer.
    void Abandon();

private:
    void Begin(const QPageLayout& paper, int resolution);

    QString pdfPath_;
    QBuffer pdf_;
    std::unique_ptr<QPagedPaintDevice> device_;
    QPainter painter_;  // behind the device, since it must end before it
};

}  // namespace output
