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

using namespace Qt::StringLiterals;
using values::CMoney;
using values::Format;
using values::Money;

namespace {

constexpr double ShopNameFontSize = 20;

QString DateAndTime() {
    const QDateTime now = values::Now();
    return Format(now.date(), u"dd.mm.yyyy") % u"  "_s % Format(now.time(), u"hh:mm:ss");
}

QString TotalsRule() {
    if (TheSettings.TipRacuna == u"7") return QString(32, u'-');
    if (TheSettings.TipRacuna == u"5") return QString(80, u'_');
    return QString(40, u'-');
}

bool IsCashierPrinted() {
    const QString& wanted = TheSettings.PrintKasir;
    if (values::IsNumeric(wanted)) return values::CDouble(wanted) != 0;
    return wanted.compare(u"True", Qt::CaseInsensitive) == 0;
}

}  // namespace

void PrintInvoiceHeading(const QString& OutputMode, const InvoiceText& invoice) {
    const bool isA4 = TheSettings.TipRacuna == u"5";
    if (isA4) output::ThePagePrinter().SetFontSize(ShopNameFontSize);
    PrintToChannel(OutputMode, TheSettings.NazivFirme);
    if (isA4) output::ThePagePrinter().SetFontSize(PageFontSize());
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

void PrintNumberLine(const QString& OutputMode, const QString& label, const QString& orNo) {
    PrintToChannel(OutputMode, label % orNo % u"    "_s % DateAndTime());
}

void PrintDateAndNumberLines(const QString& OutputMode, const QString& label, const QString& orNo) {
    PrintToChannel(OutputMode, u"Date:"_s + DateAndTime());
    PrintToChannel(OutputMode, label + orNo);
}

void PrintInvoiceTotals(const QString& OutputMode, const InvoiceText& invoice) {
    const QString rule = TotalsRule();
    const qint32 figureWidth = output::Columns(invoice.total);
    const qint32 labelWidth = output::Columns(rule) - figureWidth;
    const auto printTotal = [&](const QString& label, const QString& figure) {
        PrintToChannel(OutputMode,
                       PadLeft(labelWidth, label % TheSettings.Currency % u": "_s) % PadLeft(figureWidth, figure));
    };
    PrintToChannel(OutputMode, rule);
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
    PrintToChannel(OutputMode, QString(15, u'-'));
    PrintToChannel(OutputMode, PadLeft(15, u" TOTAL:"_s + Format(sum, u"0.00")));
}

void PrintTaxRecapitulationIfWanted(const QString& OutputMode, const InvoiceText& invoice) {
    if (TheSettings.RekapPoreza == u"1") PrintTaxRecapitulation(OutputMode, invoice);
}

void PrintInvoiceFooter(const QString& OutputMode, const InvoiceText& invoice) {
    PrintToChannel(OutputMode, {});
    if (IsCashierPrinted()) PrintToChannel(OutputMode, u"Cashier:"_s + invoice.cashier);
    PrintToChannel(OutputMode, TheSettings.Footer);
}
