#include "receipts/frmDepozit.h"

#include "receipts/FiscalRecords.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

DepositEntry::DepositEntry(const Words& words) : FiscalEntry(words) {
    FunctionKeys({{Qt::Key_Return, ui.cmdClose}, {Qt::Key_F12, ui.cmdClose}});
}

frmDepozit::frmDepozit()
    : DepositEntry({.name = u"frmDepozit"_s,
                    .title = tr("Deposit - payment "),
                    .frame = tr("Deposit payment - only for fiscal printers"),
                    .note = tr("only for fiscal printers"),
                    .label = tr("Amount:"),
                    .toolTip = tr("Register amount of deposit - F12"),
                    .notNumeric = tr("Deposit must be numeric."),
                    .confirmation = tr("Paid deposit.")}) {}

QString frmDepozit::Record(const QString& number) const {
    return FiscalDepositRecord(values::CMoney(number));
}

frmDepozitIsplata::frmDepozitIsplata()
    : DepositEntry({.name = u"frmDepozitIsplata"_s,
                    .title = tr("Deposit payout"),
                    .frame = tr("Deposit payout - only for fiscal printers"),
                    .note = tr("only for fiscal printers"),
                    .label = tr("Amount:"),
                    .toolTip = tr("Register amount of deposit - F12"),
                    .notNumeric = tr("Deposit must be numeric."),
                    .confirmation = tr("Deposit payout.")}) {}

QString frmDepozitIsplata::Record(const QString& number) const {
    return FiscalPayoutRecord(values::CMoney(number));
}
