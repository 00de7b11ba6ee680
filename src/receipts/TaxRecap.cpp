#include "receipts/TaxRecap.h"

#include "values/Format.h"
#include "values/Numbers.h"

using values::CMoney;
using values::Format;

namespace {

QString Sum(const QString& sum, const QString& amount) {
    return Format((CMoney(sum) + CMoney(amount)).ToDouble(), u"0.00");
}

}  // namespace

int AddToTaxRecap(const InvoiceText::Item& line, QList<InvoiceText::Tax>& recap) {
    for (qsizetype row = 0; row < recap.size(); ++row) {
        InvoiceText::Tax& tax = recap[row];
        if (tax.taxID != line.taxID) continue;
        tax.amount = Sum(tax.amount, line.amount);
        tax.taxAmount = Sum(tax.taxAmount, line.taxAmount);
        return static_cast<int>(row);
    }
    recap << InvoiceText::Tax{line.taxID, Format(line.taxPercent, u"0.00"), Format(line.amount, u"0.00"),
                              Format(line.taxAmount, u"0.00")};
    return -1;
}

QList<InvoiceText::Tax> TaxRecapOf(const QList<InvoiceText::Item>& lines) {
    QList<InvoiceText::Tax> recap;
    for (const auto& line : lines) AddToTaxRecap(line, recap);
    return recap;
}
