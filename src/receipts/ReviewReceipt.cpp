#include "receipts/ReviewReceipt.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/Channel.h"
#include "output/Folder.h"
#include "receipts/InvoiceOutput.h"
#include "receipts/ReceiptParts.h"

using namespace Qt::StringLiterals;

namespace {

const auto PreviewMode = u"2"_s;
constexpr qint16 PreviewBlankLines = 2;

// Paper and preview do not name the number alike when it shares its line with the date.
const auto PaperLabel = u"Invoice No"_s;
const auto PreviewLabel = u"Invoice No:"_s;
const auto OwnLineLabel = u"Invoice No:"_s;

void PrintReviewHeading(const QString& OutputMode) {
    PrintToChannel(OutputMode, TheSettings.NazivFirme);
    PrintShopLines(OutputMode);
}

void PrintReviewDateBlock(const QString& OutputMode, DateBlock block, const QString& label, const QString& orNo) {
    PrintDateBlock(OutputMode, block, block == DateBlock::OneLine ? label : OwnLineLabel, orNo);
}

void PrintReviewText(const QString& OutputMode, const QString& label, const InvoiceText& invoice) {
    const ReceiptLayout& layout = ChosenLayout();
    PrintReviewHeading(OutputMode);
    PrintReviewDateBlock(OutputMode, layout.reviewDate, label, invoice.orNo);
    if (layout.isReviewed) PrintItems(OutputMode, layout, invoice);
    PrintInvoiceTotals(OutputMode, layout, invoice);
    PrintTaxRecapitulationIfWanted(OutputMode, invoice);
    PrintInvoiceFooter(OutputMode, invoice);
}

}  // namespace

void ReprintInvoice(const InvoiceText& invoice) {
    PrintOrEndProgram([&] {
        const QString OutputMode = TheSettings.PrinterZaRacun;
        OpenInvoiceOutput(OutputMode);
        PrintReviewText(OutputMode, PaperLabel, invoice);
        FinishInvoiceOutput(OutputMode);
    });
}

void AppendInvoiceToPreview(const InvoiceText& invoice) {
    output::Channel& channel = output::Channel1();
    if (!channel.IsOpen()) channel.OpenForAppend(output::InProgramFolder(PreviewFile));
    PrintReviewText(PreviewMode, PreviewLabel, invoice);
    FeedBlankLines(PreviewBlankLines);
}

void ClosePreview() {
    output::Channel1().Close();
}
