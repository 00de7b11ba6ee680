#include "receipts/InvoiceOutput.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "output/Channel.h"
#include "output/OutputGuard.h"
#include "output/PagePrinter.h"
#include "receipts/ReceiptWords.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

output::PrinterFamily Family() {
    return TheSettings.Emulacija == u"2" ? output::PrinterFamily::Star : output::PrinterFamily::Epson;
}

// Empty for a printer that is ready.
QString Trouble(output::PrinterState state, const QString& port) {
    switch (state) {
        case output::PrinterState::Ready:
            return {};
        case output::PrinterState::NoPaper:
            return ReceiptWords::tr("The printer on LPT%1 has no paper.").arg(port);
        case output::PrinterState::CoverOpen:
            return ReceiptWords::tr("The printer on LPT%1 has its cover open.").arg(port);
        case output::PrinterState::Offline:
            return ReceiptWords::tr("The printer on LPT%1 is offline or has an error.").arg(port);
        case output::PrinterState::Silent:
            return ReceiptWords::tr("The printer on LPT%1 does not answer.").arg(port);
    }
    return {};
}

bool WantsAnotherTry(const QString& trouble) {
    return forms::Ask(trouble + u' ' +
                          ReceiptWords::tr("Nothing is printed yet.\n\n"
                                           "Yes: look at it again. No: print all the same."),
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
        const QString trouble = isAsked ? Trouble(output::Channel1().AskPrinter(Family()), OutputMode) : QString();
        if (trouble.isEmpty()) return;
        output::Channel1().Drop();
        isAsked = WantsAnotherTry(trouble);
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
