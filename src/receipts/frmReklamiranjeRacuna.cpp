#include "receipts/frmReklamiranjeRacuna.h"

#include "receipts/FiscalRecords.h"

using namespace Qt::StringLiterals;

frmReklamiranjeRacuna::frmReklamiranjeRacuna()
    : FiscalEntry(
          {.name = u"frmReklamiranjeRacuna"_s,
           .title = tr("Withdrawal invoice - only fiscal printer"),
           .frame = tr("Withdrawal invoice - only fiscal printer"),
           .note = tr("NOTE: There must be registered sales with enough money in the fiscal device to be able to "
                      "execute this command"),
           .label = tr("Invoice No:"),
           .toolTip = tr("Withdraw invoice - F12"),
           .notNumeric = tr("Invoice No must be numeric."),
           .confirmation = tr("Invoice withdraw.")}) {}

QString frmReklamiranjeRacuna::Record(const QString& number) const {
    return FiscalWithdrawalRecord(number);
}
