#include "receipts/PrintInvoice.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/Channel.h"
#include "output/Folder.h"
#include "receipts/FiscalFile.h"
#include "receipts/InvoiceOutput.h"
#include "receipts/ReceiptParts.h"

using namespace Qt::StringLiterals;

namespace {

const auto NumberLabel = u"INVOICE No:"_s;
const auto RibbonMode = u"2"_s;
constexpr qint16 RibbonBlankLines = 2;

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

void PrintReceiptText(const QString& OutputMode, const InvoiceText& invoice) {
    const ReceiptLayout& layout = ChosenLayout();
    PrintInvoiceHeading(OutputMode, layout, invoice);
    PrintDateBlock(OutputMode, layout.date, NumberLabel, invoice.orNo);
    PrintItems(OutputMode, layout, invoice);
    PrintInvoiceTotals(OutputMode, layout, invoice);
    PrintTaxRecapitulationIfWanted(OutputMode, invoice);
    PrintInvoiceFooter(OutputMode, invoice);
}

void PrintInvoice(const InvoiceText& invoice) {
    PrintOrEndProgram([&] {
        PrintReceipt(invoice);
        if (TheSettings.TrakaRacunaFileDA) AppendToRibbon(invoice);
        if (TheSettings.FiskalniRacunDA != u"0") AppendFiscalSale(invoice);
    });
}
