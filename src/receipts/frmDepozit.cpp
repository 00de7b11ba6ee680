#include "receipts/frmDepozit.h"

#include "receipts/FiscalRecords.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

DepositEntry::DepositEntry(const Words& words) : FiscalEntry(words) {
    FunctionKeys({{Qt::Key_Return, ui.cmdClose}, {Qt::Key_F12, ui.cmdClose}});
}

frmDepozit::frmDepozit()
    : DepositEntry({.name = u"frmDepozit"_s,
                    .title = u"Deposit - payment "_s,
                    .frame = u"Deposit payment - only for fiscal printers"_s,
                    .note = u"only for fiscal printers"_s,
                    .label = u"Amount:"_s,
                    .toolTip = u"Register amount of deposit - F12"_s,
                    .notNumeric = u"Deposit must be numeric."_s,
                    .confirmation = u"Paid deposit."_s}) {}

QString frmDepozit::Record(const QString& number) const {
    return FiscalDepositRecord(values::CMoney(number));
}

frmDepozitIsplata::frmDepozitIsplata()
    : DepositEntry({.name = u"frmDepozitIsplata"_s,
                    .title = u"Deposit payout"_s,
                    .frame = u"Deposit payout - only for fiscal printers"_s,
                    .note = u"only for fiscal printers"_s,
                    .label = u"Amount:"_s,
                    .toolTip = u"Register amount of deposit - F12"_s,
                    .notNumeric = u"Deposit must be numeric."_s,
                    .confirmation = u"Deposit payout."_s}) {}

QString frmDepozitIsplata::Record(const QString& number) const {
    return FiscalPayoutRecord(values::CMoney(number));
}
