#include "receipts/InvoiceOutput.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/Channel.h"
#include "output/OutputGuard.h"
#include "output/PagePrinter.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

struct ControlCodes {
    QByteArray drawer;
    QByteArray cutter;
};

// The command sets of the two families of receipt printers.
ControlCodes PrinterCodes() {
    if (TheSettings.Emulacija == u"2") return {.drawer = "\x07"_ba, .cutter = "\x1B\x64\x33"_ba};
    return {.drawer = "\x1B\x70\x00\x3C\x78"_ba, .cutter = "\x1D\x56\x42\x00"_ba};
}

bool IsPort(const QString& OutputMode) {
    return OutputMode == u"1" || OutputMode == u"2";
}

}  // namespace

void OpenInvoiceOutput(const QString& OutputMode) {
    if (OutputMode == u"3") SetPageFont();
    if (!IsPort(OutputMode)) return;
    output::Channel1().OpenPort(u"lpt"_s + OutputMode + u':');
    output::Channel1().WriteBytes(PrinterCodes().drawer);
}

void FinishInvoiceOutput(const QString& OutputMode) {
    if (OutputMode == u"3") output::ThePagePrinter().EndJob();
    if (!IsPort(OutputMode)) return;
    FeedBlankLines(TheSettings.PraznihLinijaPoslijeRacuna);
    if (TheSettings.RezacPapira == u"1") output::Channel1().WriteBytes(PrinterCodes().cutter);
    output::Channel1().Close();
}

void PrintOrEndProgram(const std::function<void()>& print) {
    const output::OutputGuard guard;
    try {
        print();
    } catch (const output::OutputError&) {
        throw;
    } catch (const values::Error& error) {
        throw output::OutputError(error.Number(), error.Description());
    }
}

double PageFontSize() {
    const QString& size = TheSettings.VelFont;
    return values::IsNumeric(size) ? static_cast<float>(values::CDouble(size)) : 0;
}

void SetPageFont() {
    output::ThePagePrinter().SetFontName(TheSettings.Font);
    output::ThePagePrinter().SetFontSize(PageFontSize());
}
