#include "receipts/ReviewReceipt.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/Channel.h"
#include "output/Folder.h"
#include "receipts/InvoiceOutput.h"
#include "receipts/ReceiptParts.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

const auto PreviewMode = u"2"_s;
constexpr qint16 PreviewBlankLines = 2;

// Paper and preview do not name the number alike when it shares its line with the date.
QString OnPaper(const QString& orNo) {
    //: at most 11 columns without %1, the number
    return Paper::tr("Invoice No%1").arg(orNo);
}

QString InPreview(const QString& orNo) {
    //: at most 11 columns without %1, the number
    return Paper::tr("Invoice No:%1").arg(orNo);
}

void PrintReviewHeading(const QString& OutputMode) {
    PrintToChannel(OutputMode, TheSettings.NazivFirme);
    PrintShopLines(OutputMode);
}

void PrintReviewText(const QString& OutputMode, QString (*number)(const QString& orNo), const InvoiceText& invoice) {
    const ReceiptLayout& layout = ChosenLayout();
    PrintReviewHeading(OutputMode);
    const auto named = layout.reviewDate == DateBlock::OneLine ? number : InPreview;
    PrintDateBlock(OutputMode, layout.reviewDate, named(invoice.orNo));
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
        PrintReviewText(OutputMode, OnPaper, invoice);
        FinishInvoiceOutput(OutputMode);
    });
}

void AppendInvoiceToPreview(const InvoiceText& invoice) {
    output::Channel& channel = output::Channel1();
    if (!channel.IsOpen()) channel.OpenForAppend(output::InProgramFolder(PreviewFile));
    PrintReviewText(PreviewMode, InPreview, invoice);
    FeedBlankLines(PreviewBlankLines);
}

void ClosePreview() {
    output::Channel1().Close();
}
