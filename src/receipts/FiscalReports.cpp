#include "receipts/FiscalReports.h"

#include "core/Settings.h"
#include "core/mdiORVA.h"
#include "forms/MsgBox.h"
#include "receipts/FiscalFile.h"
#include "receipts/FiscalRecords.h"
#include "receipts/ReceiptWords.h"

using namespace Qt::StringLiterals;

void XReport() {
    AppendFiscalRecords({FiscalTextRecord(u"x report"_s, WebAddressLine), FiscalXRecord()});
    forms::Inform(ReceiptWords::tr("X report is done."), mdiORVA::Window().Caption());
}

void ZReport() {
    AppendFiscalRecords(
        {FiscalTextRecord(u"daily report"_s, WebAddressLine), FiscalZRecord(), FiscalTextRecord(WebAddressLine, {})});
    forms::Inform(ReceiptWords::tr("Z report - daily report is done."), mdiORVA::Window().Caption());
}
