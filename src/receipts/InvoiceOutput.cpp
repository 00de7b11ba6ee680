#include "receipts/InvoiceOutput.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "output/Channel.h"
#include "output/OutputGuard.h"
#include "output/PagePrinter.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

output::PrinterFamily Family() {
    return TheSettings.Emulacija == u"2" ? output::PrinterFamily::Star : output::PrinterFamily::Epson;
}

// Empty for a printer that is ready.
QString Trouble(output::PrinterState state) {
    switch (state) {
        case output::PrinterState::Ready:
            return {};
        case output::PrinterState::NoPaper:
            return u"has no paper"_s;
        case output::PrinterState::CoverOpen:
            return u"has its cover open"_s;
        case output::PrinterState::Offline:
            return u"is offline or has an error"_s;
        case output::PrinterState::Silent:
            return u"does not answer"_s;
    }
    return {};
}

bool WantsAnotherTry(const QString& OutputMode, const QString& trouble) {
    return forms::Ask(
        u"The printer on LPT%1 %2. Nothing is printed yet.\n\n"
        u"Yes: look at it again. No: print all the same."_s.arg(OutputMode, trouble),
        {});
}

bool IsPort(const QString& OutputMode) {
    return OutputMode == u"1" || OutputMode == u"2";
}

}  // namespace

// The printer is let go while the question stands: it may be switched off, or answer late.
void OpenPrinterPort(const QString& OutputMode) {
    for (bool isAsked = true;;) {
        output::Channel1().OpenPort(u"lpt"_s + OutputMode + u':');
        const QString trouble = isAsked ? Trouble(output::Channel1().AskPrinter(Family())) : QString();
        if (trouble.isEmpty()) return;
        output::Channel1().Drop();
        isAsked = WantsAnotherTry(OutputMode, trouble);
    }
}

void OpenInvoiceOutput(const QString& OutputMode) {
    if (OutputMode == u"3") SetPageFont();
    if (!IsPort(OutputMode)) return;
    OpenPrinterPort(OutputMode);
    output::Channel1().WriteBytes(output::CodesOf(Family()).drawer);
}

void FinishInvoiceOutput(const QString& OutputMode) {
    if (OutputMode == u"3") output::ThePagePrinter().EndJob();
    if (!IsPort(OutputMode)) return;
    FeedBlankLines(TheSettings.PraznihLinijaPoslijeRacuna);
    if (TheSettings.RezacPapira == u"1") output::Channel1().WriteBytes(output::CodesOf(Family()).cutter);
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
