#pragma once

#include <QPageLayout>
#include <QString>
#include <memory>

namespace output {

// The system's default printer as a device that takes lines of text; where there is none, a PDF under "printouts" in
// the program's folder. A job begins with the first line and ends with EndJob; a font change holds for the lines behind
// it. Failures throw OutputError.
class PagePrinter {
public:
    PagePrinter();
    ~PagePrinter();
    void SetFontName(const QString& name);
    // A size that no page can hold, 0 among them, stands for 9 points.
    void SetFontSize(double points);
    // The paper of the jobs to come; what the device has of itself until it is set, or set to an invalid one.
    void SetPaper(const QPageLayout& paper);
    QPageLayout Paper() const;
    void PrintLine(const QString& line);
    void EndJob();
    // Drops a job that was begun, for a handler that gives up.
    void Abandon();

private:
    struct Job;
    QString fontName_;
    double fontSize_ = 9;
    QPageLayout paper_;
    std::unique_ptr<Job> job_;
};

PagePrinter& ThePagePrinter();

}  // namespace output
