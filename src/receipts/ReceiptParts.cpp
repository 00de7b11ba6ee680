#include "receipts/ReceiptParts.h"

#include <QStringBuilder>

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/CodePage.h"
#include "output/PagePrinter.h"
#include "receipts/InvoiceOutput.h"
#include "values/Clock.h"
#include "values/Format.h"
#include "values/Numbers.h"
#include "values/Tax.h"

using namespace Qt::StringLiterals;
using values::CMoney;
using values::Format;
using values::Money;

namespace {

constexpr double NumberFontSize = 16;

QString DateAndTime() {
    const QDateTime now = values::Now();
    return Format(now.date(), u"dd.mm.yyyy") % u"  "_s % Format(now.time(), u"hh:mm:ss");
}

void PrintA4DateBlock(const QString& OutputMode, const QString& label, const QString& orNo) {
    const QString date = Format(values::Today(), u"dd.mm.yyyy");
    PrintToChannel(OutputMode, u"Date of issue:"_s + date);
    PrintToChannel(OutputMode, u"Delivery date :"_s + date);
    output::ThePagePrinter().SetFontSize(NumberFontSize);
    PrintToChannel(OutputMode, u" "_s);
    PrintToChannel(OutputMode, label + orNo);
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
    PrintToChannel(OutputMode, u"Custumer:"_s + invoice.customer);
    PrintToChannel(OutputMode, u"ID:"_s + invoice.ident);
}

void PrintShopLines(const QString& OutputMode) {
    PrintToChannel(OutputMode, TheSettings.Adresa);
    PrintToChannel(OutputMode, TheSettings.JIB);
    PrintToChannel(OutputMode, TheSettings.Tel);
    PrintToChannel(OutputMode, TheSettings.MjestoProdaje);
    PrintToChannel(OutputMode, {});
}

void PrintDateBlock(const QString& OutputMode, DateBlock block, const QString& label, const QString& orNo) {
    if (block == DateBlock::A4) return PrintA4DateBlock(OutputMode, label, orNo);
    if (block == DateBlock::OneLine) return PrintToChannel(OutputMode, label % orNo % u"    "_s % DateAndTime());
    PrintToChannel(OutputMode, u"Date:"_s + DateAndTime());
    PrintToChannel(OutputMode, label + orNo);
}

void PrintItems(const QString& OutputMode, const ReceiptLayout& layout, const InvoiceText& invoice) {
    if (layout.item.empty()) return;
    const QString rule(layout.width, layout.rule);
    for (const QString& line : QStringList{rule} + layout.head + QStringList{rule}) PrintToChannel(OutputMode, line);
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
        PrintToChannel(OutputMode,
                       PadLeft(labelWidth, label % TheSettings.Currency % u": "_s) % PadLeft(figureWidth, figure));
    };
    PrintToChannel(OutputMode, QString(layout.totalsWidth, layout.rule));
    printTotal(u"Subtotal......"_s, Format(CMoney(invoice.total) - CMoney(invoice.taxTotal), u"0.00"));
    printTotal(u"Tax..........."_s, invoice.taxTotal);
    printTotal(u"TOTAL........."_s, invoice.total);
}

void PrintTaxRecapitulation(const QString& OutputMode, const InvoiceText& invoice) {
    PrintToChannel(OutputMode, {});
    PrintToChannel(OutputMode, u"Taxes          "_s);
    PrintToChannel(OutputMode, u"Rate     Amount"_s);
    Money sum;
    for (const auto& tax : invoice.taxes) {
        PrintToChannel(OutputMode, PadLeft(5, tax.percent) % u"% "_s % PadLeft(8, tax.taxAmount));
        sum += CMoney(tax.taxAmount);
    }
    PrintToChannel(OutputMode, QString(RecapWidth, u'-'));
    PrintToChannel(OutputMode, PadLeft(RecapWidth, u" TOTAL:"_s + Format(sum, u"0.00")));
}

void PrintTaxRecapitulationIfWanted(const QString& OutputMode, const InvoiceText& invoice) {
    if (TheSettings.RekapPoreza == u"1") PrintTaxRecapitulation(OutputMode, invoice);
}

void PrintInvoiceFooter(const QString& OutputMode, const InvoiceText& invoice) {
    PrintToChannel(OutputMode, {});
    if (IsCashierPrinted()) PrintToChannel(OutputMode, u"Cashier:"_s + invoice.cashier);
    PrintToChannel(OutputMode, TheSettings.Footer);
}
