#include "receipts/ItemLayouts.h"

#include <QStringBuilder>
#include <array>

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/CodePage.h"
#include "values/Error.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::CMoney;
using values::Format;
using values::Money;

namespace {

constexpr int DivisionByZero = 11;

const QString Rule32(32, u'-');
const QString Rule40(40, u'-');
const QString Rule80(80, u'_');

void PrintHeader(const QString& OutputMode, const QString& rule, const QStringList& captions) {
    PrintToChannel(OutputMode, rule);
    for (const QString& caption : captions) PrintToChannel(OutputMode, caption);
    PrintToChannel(OutputMode, rule);
}

// A code or row number and the description behind it, which share `width` columns beside the blank between them.
QString Labelled(qint32 width, const QString& label, const QString& description) {
    return label % u' ' % PadRight(width - output::Columns(label), description);
}

QString WideFigures(const InvoiceText::Item& item) {
    return PadLeft(8, item.unitPrice) % u' ' % PadLeft(7, item.quantity) % u' ' % PadLeft(5, item.taxPercent) %
           u"% "_s % PadLeft(7, item.taxAmount) % u' ' % PadLeft(8, item.amount);
}

QString NarrowFigures(const InvoiceText::Item& item) {
    return PadLeft(8, item.unitPrice) % PadLeft(6, item.quantity) % PadLeft(8, item.amount);
}

// Price / (1 + percent / 100): both sides are rounded to money, the quotient is a double.
QString PriceWithoutTax(const InvoiceText::Item& item) {
    const Money divisor = Money::FromDouble(1 + values::CDouble(item.taxPercent) / 100);
    if (divisor == Money()) throw values::Error(DivisionByZero, u"Division by zero."_s);
    return Format(CMoney(item.unitPrice).ToDouble() / divisor.ToDouble(), u"0.00");
}

QString AmountWithoutTax(const InvoiceText::Item& item) {
    return Format(CMoney(item.amount) - CMoney(item.taxAmount), u"0.00");
}

}  // namespace

void PrintItemsLayout1(const QString& OutputMode, const InvoiceText& invoice) {
    PrintHeader(OutputMode, Rule40,
                {u"ProductID  Product description          "_s, u"   Price Quantit TaxRat     TAX   Amount"_s});
    for (const auto& item : invoice.items) {
        PrintToChannel(OutputMode, Labelled(39, item.code, item.description));
        PrintToChannel(OutputMode, WideFigures(item));
    }
}

void PrintItemsLayout2(const QString& OutputMode, const InvoiceText& invoice) {
    PrintHeader(OutputMode, Rule40, {u"Product              Price Quant  Amount"_s});
    for (const auto& item : invoice.items)
        PrintToChannel(OutputMode, PadRight(18, item.description) + NarrowFigures(item));
}

void PrintItemsLayout3(const QString& OutputMode, const InvoiceText& invoice) {
    PrintHeader(OutputMode, Rule40,
                {u"No Product description                  "_s, u"   Price Quantit TaxRat     TAX   Amount"_s});
    int row = 0;
    for (const auto& item : invoice.items) {
        PrintToChannel(OutputMode, Labelled(39, QString::number(++row), item.description));
        PrintToChannel(OutputMode, WideFigures(item));
    }
}

void PrintItemsLayout4(const QString& OutputMode, const InvoiceText& invoice) {
    PrintHeader(OutputMode, Rule40, {u"No Product           Price Quant  Amount"_s});
    int row = 0;
    for (const auto& item : invoice.items) {
        PrintToChannel(OutputMode,
                       PadRight(3, QString::number(++row)) + PadRight(15, item.description) + NarrowFigures(item));
    }
}

void PrintItemsLayout5(const QString& OutputMode, const InvoiceText& invoice) {
    PrintHeader(OutputMode, Rule80,
                {u"No Product name                    Unit Quantit Price    Amount     Tax   Amount"_s,
                 u"                                                 outTax   outTax         withTax"_s});
    int row = 0;
    for (const auto& item : invoice.items) {
        PrintToChannel(OutputMode, Labelled(34, QString::number(++row), item.description) + u' ' +
                                       PadLeft(3, item.unit) + u' ' + PadLeft(7, item.quantity) +
                                       PadLeft(8, PriceWithoutTax(item)) + u' ' + PadLeft(7, AmountWithoutTax(item)) +
                                       u' ' + PadLeft(7, item.taxAmount) + u' ' + PadLeft(8, item.amount));
    }
}

void PrintItemsLayout6(const QString& OutputMode, const InvoiceText& invoice) {
    PrintHeader(OutputMode, Rule32, {u"No Product description          "_s, u"     Price  Quantity      Amount"_s});
    int row = 0;
    for (const auto& item : invoice.items) {
        PrintToChannel(OutputMode, Labelled(31, QString::number(++row), item.description));
        PrintToChannel(OutputMode, PadLeft(9, item.unitPrice) + PadLeft(10, item.quantity) + PadLeft(13, item.amount));
    }
}

void PrintItemsLayout7(const QString& OutputMode, const InvoiceText& invoice) {
    PrintHeader(OutputMode, Rule32, {u"Product      Price Quant  Amount"_s});
    for (const auto& item : invoice.items)
        PrintToChannel(OutputMode, PadRight(10, item.description) + NarrowFigures(item));
}

void PrintItems(const QString& OutputMode, const InvoiceText& invoice) {
    static constexpr std::array layouts = {PrintItemsLayout1, PrintItemsLayout2, PrintItemsLayout3, PrintItemsLayout4,
                                           PrintItemsLayout5, PrintItemsLayout6, PrintItemsLayout7};
    for (size_t i = 0; i < layouts.size(); ++i)
        if (TheSettings.TipRacuna == QString::number(i + 1)) layouts[i](OutputMode, invoice);
}
