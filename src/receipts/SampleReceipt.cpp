#include "receipts/SampleReceipt.h"

#include <QScopedValueRollback>

#include "receipts/PrintInvoice.h"
#include "receipts/PrintedText.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;
using values::Format;
using values::Money;

namespace {

const auto Mode = u"2"_s;

QString Amount(qint64 hundredths) {
    return Format(Money::FromUnits(hundredths * 100), u"0.00");
}

InvoiceText::Item Line(const QString& code, const QString& name, const QString& unit) {
    InvoiceText::Item line;
    line.code = code;
    line.description = name;
    line.unit = unit;
    line.taxID = u"P"_s;
    line.taxPercent = Amount(1700);
    return line;
}

InvoiceText Invented() {
    InvoiceText::Item milk = Line(u"3850104003217"_s, u"Milk 1 l"_s, u"pcs"_s);
    milk.unitPrice = Amount(235);
    milk.quantity = Amount(200);
    milk.amount = Amount(470);
    milk.taxAmount = Amount(68);
    InvoiceText::Item apples = Line(u"201"_s, u"Apples, red"_s, u"kg"_s);
    apples.unitPrice = Amount(398);
    apples.quantity = Amount(250);
    apples.amount = Amount(995);
    apples.taxAmount = Amount(145);
    InvoiceText invoice;
    invoice.orNo = u"1"_s;
    invoice.cashier = u"Ana"_s;
    invoice.items = {milk, apples};
    invoice.taxes = {{.taxID = u"P"_s, .percent = Amount(1700), .amount = Amount(1465), .taxAmount = Amount(213)}};
    invoice.total = Amount(1465);
    invoice.taxTotal = Amount(213);
    return invoice;
}

}  // namespace

QString SampleReceipt(const Settings& settings) {
    const QScopedValueRollback<Settings> kept(TheSettings, settings);
    return PrintedText([] { PrintReceiptText(Mode, Invented()); });
}
