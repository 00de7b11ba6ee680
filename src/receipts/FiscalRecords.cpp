#include "receipts/FiscalRecords.h"

#include "values/Format.h"

using namespace Qt::StringLiterals;
using values::Format;
using values::Money;

namespace {

QString Prefix(QChar letter) {
    return letter + u",1,______,_,__;"_s;
}

// Longer than the others by two.
const auto CashPrefix = u"I,1,________,_,__;"_s;

}  // namespace

QString FiscalSaleRecord(const QString& description, Money price, Money quantity, const QString& identification) {
    return Prefix(u'S') + description + u';' + Format(price, u"0.00") + u';' + Format(quantity, u"0.000") +
           u";1;1;2;0;"_s + identification;
}

QString FiscalEndOfSaleRecord() {
    return Prefix(u'T');
}

QString FiscalFreeLineV(int line, const QString& text) {
    return Prefix(u'V') + u'+' + QString::number(line) + text;
}

QString FiscalFreeLineQ(int line, const QString& text) {
    return Prefix(u'Q') + QString::number(line) + u';' + text + u';';
}

QString FiscalTextRecord(const QString& first, const QString& second) {
    return Prefix(u'E') + first + u';' + second + u';';
}

QString FiscalXRecord() {
    return Prefix(u'X');
}

QString FiscalZRecord() {
    return Prefix(u'Z');
}

QString FiscalDepositRecord(Money amount) {
    return CashPrefix + u"0;"_s + Format(amount, u"0.00") + u";;;;"_s;
}

QString FiscalPayoutRecord(Money amount) {
    return CashPrefix + u"1;"_s + Format(amount, u"0.00") + u";;;;"_s;
}

QString FiscalPeriodicRecord(QDate from, QDate to) {
    return Prefix(u'V') + u'O' + Format(from, u"ddmmyy") + u',' + Format(to, u"ddmmyy");
}

QString FiscalWithdrawalRecord(const QString& invoiceNumber) {
    return Prefix(u'K') + Format(invoiceNumber, u"000000");
}
