#include "receipts/PrintInvoice.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/Channel.h"
#include "output/Folder.h"
#include "receipts/FiscalFile.h"
#include "receipts/InvoiceOutput.h"
#include "receipts/ReceiptParts.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

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
    //: at most 11 columns without %1, the number
    PrintDateBlock(OutputMode, layout.date, Paper::tr("INVOICE No:%1").arg(invoice.orNo));
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
