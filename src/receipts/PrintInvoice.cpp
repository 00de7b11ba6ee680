#include "receipts/PrintInvoice.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/Channel.h"
#include "output/Folder.h"
#include "output/PagePrinter.h"
#include "receipts/FiscalFile.h"
#include "receipts/InvoiceOutput.h"
#include "receipts/ItemLayouts.h"
#include "receipts/ReceiptParts.h"
#include "values/Clock.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace {

const auto NumberLabel = u"INVOICE No:"_s;
const auto RibbonMode = u"2"_s;
constexpr qint16 RibbonBlankLines = 2;
constexpr double NumberFontSize = 16;

void PrintA4DateBlock(const QString& OutputMode, const InvoiceText& invoice) {
    const QString date = values::Format(values::Today(), u"dd.mm.yyyy");
    PrintToChannel(OutputMode, u"Date of issue:"_s + date);
    PrintToChannel(OutputMode, u"Delivery date :"_s + date);
    output::ThePagePrinter().SetFontSize(NumberFontSize);
    PrintToChannel(OutputMode, u" "_s);
    PrintToChannel(OutputMode, NumberLabel + invoice.orNo);
    output::ThePagePrinter().SetFontSize(PageFontSize());
    PrintToChannel(OutputMode, u" "_s);
}

// Layout 6 has the one line as well, although it is wider than its paper.
void PrintDateBlock(const QString& OutputMode, const InvoiceText& invoice) {
    if (TheSettings.TipRacuna == u"5") return PrintA4DateBlock(OutputMode, invoice);
    if (TheSettings.TipRacuna == u"7") return PrintDateAndNumberLines(OutputMode, NumberLabel, invoice.orNo);
    PrintNumberLine(OutputMode, NumberLabel, invoice.orNo);
}

void PrintReceiptText(const QString& OutputMode, const InvoiceText& invoice) {
    PrintInvoiceHeading(OutputMode, invoice);
    PrintDateBlock(OutputMode, invoice);
    PrintItems(OutputMode, invoice);
    PrintInvoiceTotals(OutputMode, invoice);
    PrintTaxRecapitulationIfWanted(OutputMode, invoice);
    PrintInvoiceFooter(OutputMode, invoice);
}

void PrintReceipt(const InvoiceText& invoice) {
    const QString OutputMode = TheSettings.PrinterZaRacun;
    OpenInvoiceOutput(OutputMode);
    PrintReceiptText(OutputMode, invoice);
    FinishInvoiceOutput(OutputMode);
}

void AppendToRibbon(const InvoiceText& invoice) {
    output::Channel1().OpenForAppend(output::InProgramFolder(TheSettings.TrakaRacunaFile));
    PrintReceiptText(RibbonMode, invoice);
    FeedBlankLines(RibbonBlankLines);
    output::Channel1().Sync();
    output::Channel1().Close();
}

}  // namespace

void PrintInvoice(const InvoiceText& invoice) {
    PrintOrEndProgram([&] {
        PrintReceipt(invoice);
        if (TheSettings.TrakaRacunaFileDA) AppendToRibbon(invoice);
        if (TheSettings.FiskalniRacunDA != u"0") AppendFiscalSale(invoice);
    });
}
