#include "receipts/frmReklamiranjeRacuna.h"

#include "receipts/FiscalRecords.h"

using namespace Qt::StringLiterals;

frmReklamiranjeRacuna::frmReklamiranjeRacuna()
    : FiscalEntry({.name = u"frmReklamiranjeRacuna"_s,
                   .title = u"Withdrawal invoice - only fiscal printer"_s,
                   .frame = u"Withdrawal invoice - only fiscal printer"_s,
                   .note = u"NOTE: There must be registered sales with enough money in the fiscal device to be able to "
                           u"execute this command"_s,
                   .label = u"Invoice No:"_s,
                   .toolTip = u"Withdraw invoice - F12"_s,
                   .notNumeric = u"Invoice No must be numeric."_s,
                   .confirmation = u"Invoice withdraw."_s}) {}

QString frmReklamiranjeRacuna::Record(const QString& number) const {
    return FiscalWithdrawalRecord(number);
}
