#include "reports/ReportFile.h"

#include "output/Channel.h"
#include "output/Folder.h"
#include "output/OutputGuard.h"
#include "receipts/TextFiles.h"
#include "receipts/frmRacunPregled.h"

using namespace Qt::StringLiterals;

namespace {

const auto ReportFile = u"\\Report.txt"_s;

}  // namespace

void PassOverErrors(const std::function<void()>& step) {
    try {
        step();
    } catch (const values::Error&) {
    }
}

void WriteReportFile(const std::function<void()>& print) {
    const output::OutputGuard guard;
    output::Channel1().OpenForOutput(output::InProgramFolder(ReportFile));
    print();
    output::Channel1().Close();
}

void ShowReportFile() {
    frmRacunPregled::Preview(ReportFile);
}

void PreviewReportFile(const std::function<void()>& print) {
    {
        const output::OutputGuard guard;
        const QString path = output::InProgramFolder(ReportFile);
        PassOverErrors([&] { output::Channel1().OpenForOutput(path); });
        // An earlier report must not stand under today's question.
        if (!output::Channel1().IsOpen()) PassOverErrors([&] { DeleteTextFile(path); });
        PassOverErrors(print);
        PassOverErrors([] { output::Channel1().Close(); });
    }
    ShowReportFile();
}

void SaveReportFile(const QString& path, const std::function<void()>& print) {
    WriteReportFile(print);
    CopyTextFile(output::InProgramFolder(ReportFile), path);
}
