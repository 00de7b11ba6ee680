#include "receipts/ReceiptParts.h"

#include <QStringBuilder>

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/CodePage.h"
#include "output/PagePrinter.h"
#include "receipts/InvoiceOutput.h"
#include "values/Clock.h"
#include "values/Format.h"
#include "values/Language.h"
#include "values/Numbers.h"
#include "values/Tax.h"

using namespace Qt::StringLiterals;
using values::CMoney;
using values::Format;
using values::Money;
using values::Paper;

namespace {

constexpr double NumberFontSize = 16;

QString DateAndTime() {
    const QDateTime now = values::Now();
    return Format(now.date(), u"dd.mm.yyyy") % u"  "_s % Format(now.time(), u"hh:mm:ss");
}

void PrintA4DateBlock(const QString& OutputMode, const QString& number) {
    const QString date = Format(values::Today(), u"dd.mm.yyyy");
    //: at most 40 columns without %1, the date
    PrintToChannel(OutputMode, Paper::tr("Date of issue:%1").arg(date));
    //: at most 40 columns without %1, the date
    PrintToChannel(OutputMode, Paper::tr("Delivery date :%1").arg(date));
    output::ThePagePrinter().SetFontSize(NumberFontSize);
    PrintToChannel(OutputMode, u" "_s);
    PrintToChannel(OutputMode, number);
    output::ThePagePrinter().SetFontSize(PageFontSize());
    PrintToChannel(OutputMode, u" "_s);
}

QString ItemText(const InvoiceText::Item& item, int row, int column) {
    switch (column) {
        case RowNumber:
            return QString::number(row);
        case PriceWithoutTax:
            return Format(values::PriceWithoutTax(CMoney(item.unitPrice), values::CDouble(item.taxPercent)), u"0.00");
        case AmountWithoutTax:
            return Format(CMoney(item.amount) - CMoney(item.taxAmount), u"0.00");
        default:
            return item.*LineTexts.at(static_cast<size_t>(column));
    }
}

bool IsCashierPrinted() {
    const QString& wanted = TheSettings.PrintKasir;
    if (values::IsNumeric(wanted)) return values::CDouble(wanted) != 0;
    return wanted.compare(u"True", Qt::CaseInsensitive) == 0;
}

}  // namespace

void PrintInvoiceHeading(const QString& OutputMode, const ReceiptLayout& layout, const InvoiceText& invoice) {
    if (layout.nameSize > 0) output::ThePagePrinter().SetFontSize(layout.nameSize);
    PrintToChannel(OutputMode, TheSettings.NazivFirme);
    if (layout.nameSize > 0) output::ThePagePrinter().SetFontSize(PageFontSize());
    PrintShopLines(OutputMode);
    if (invoice.customer.isEmpty()) return;
    //: at most 12 columns without %1, the customer's name
    PrintToChannel(OutputMode, Paper::tr("Custumer:%1").arg(invoice.customer));
    //: at most 12 columns without %1, the customer's identification number
    PrintToChannel(OutputMode, Paper::tr("ID:%1").arg(invoice.ident));
}

void PrintShopLines(const QString& OutputMode) {
    PrintToChannel(OutputMode, TheSettings.Adresa);
    PrintToChannel(OutputMode, TheSettings.JIB);
    PrintToChannel(OutputMode, TheSettings.Tel);
    PrintToChannel(OutputMode, TheSettings.MjestoProdaje);
    PrintToChannel(OutputMode, {});
}

void PrintDateBlock(const QString& OutputMode, DateBlock block, const QString& number) {
    if (block == DateBlock::A4) return PrintA4DateBlock(OutputMode, number);
    if (block == DateBlock::OneLine) return PrintToChannel(OutputMode, number % u"    "_s % DateAndTime());
    //: at most 12 columns without %1, date and time
    PrintToChannel(OutputMode, Paper::tr("Date:%1").arg(DateAndTime()));
    PrintToChannel(OutputMode, number);
}

void PrintItems(const QString& OutputMode, const ReceiptLayout& layout, const InvoiceText& invoice) {
    if (layout.item.empty()) return;
    const QString rule(layout.width, layout.rule);
    PrintToChannel(OutputMode, rule);
    for (const QString& line : layout.head) PrintToChannel(OutputMode, Paper::tr(line.toUtf8().constData()));
    PrintToChannel(OutputMode, rule);
    int row = 0;
    for (const auto& item : invoice.items) {
        ++row;
        const auto text = [&item, row](int column) { return ItemText(item, row, column); };
        for (const PrintFields& fields : layout.item) PrintToChannel(OutputMode, FilledLine(fields, text));
    }
}

void PrintInvoiceTotals(const QString& OutputMode, const ReceiptLayout& layout, const InvoiceText& invoice) {
    const qint32 figureWidth = output::Columns(invoice.total);
    const qint32 labelWidth = layout.totalsWidth - figureWidth;
    const auto printTotal = [&](const QString& label, const QString& figure) {
        PrintToChannel(OutputMode, PadLeft(labelWidth, label.arg(TheSettings.Currency)) % PadLeft(figureWidth, figure));
    };
    PrintToChannel(OutputMode, QString(layout.totalsWidth, layout.rule));
    //: 16 columns without %1, the currency; dots fill them, so that the three lines are alike
    printTotal(Paper::tr("Subtotal......%1: "), Format(CMoney(invoice.total) - CMoney(invoice.taxTotal), u"0.00"));
    //: 16 columns without %1, the currency; dots fill them, so that the three lines are alike
    printTotal(Paper::tr("Tax...........%1: "), invoice.taxTotal);
    //: 16 columns without %1, the currency; dots fill them, so that the three lines are alike
    printTotal(Paper::tr("TOTAL.........%1: "), invoice.total);
}

void PrintTaxRecapitulation(const QString& OutputMode, const InvoiceText& invoice) {
    PrintToChannel(OutputMode, {});
    //: 15 columns
    PrintToChannel(OutputMode, Paper::tr("Taxes          "));
    //: 15 columns: rate 6, and to the right amount 9
    PrintToChannel(OutputMode, Paper::tr("Rate     Amount"));
    Money sum;
    for (const auto& tax : invoice.taxes) {
        PrintToChannel(OutputMode, PadLeft(5, tax.percent) % u"% "_s % PadLeft(8, tax.taxAmount));
        sum += CMoney(tax.taxAmount);
    }
    PrintToChannel(OutputMode, QString(RecapWidth, u'-'));
    //: at most 7 columns without %1, the sum of the taxes
    PrintToChannel(OutputMode, PadLeft(RecapWidth, Paper::tr(" TOTAL:%1").arg(Format(sum, u"0.00"))));
}

void PrintTaxRecapitulationIfWanted(const QString& OutputMode, const InvoiceText& invoice) {
    if (TheSettings.RekapPoreza == u"1") PrintTaxRecapitulation(OutputMode, invoice);
}

void PrintInvoiceFooter(const QString& OutputMode, const InvoiceText& invoice) {
    PrintToChannel(OutputMode, {});
    //: at most 12 columns without %1, the cashier's name
    if (IsCashierPrinted()) PrintToChannel(OutputMode, Paper::tr("Cashier:%1").arg(invoice.cashier));
    PrintToChannel(OutputMode, TheSettings.Footer);
}
