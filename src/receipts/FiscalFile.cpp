#include "receipts/FiscalFile.h"

#include "core/Settings.h"
#include "output/Channel.h"
#include "output/Folder.h"
#include "output/OutputGuard.h"
#include "receipts/FiscalRecords.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ShopNameLine = 6;
constexpr int WebAddressFreeLine = 7;

void WriteItem(const InvoiceText::Item& item, const QString& identification) {
    output::Channel1().WriteLine(FiscalSaleRecord(item.description, values::CMoney(item.unitPrice),
                                                  values::CMoney(item.quantity), identification));
}

void WriteEndOfSale(QString (*freeLine)(int line, const QString& text)) {
    output::Channel1().WriteLine(FiscalEndOfSaleRecord());
    output::Channel1().WriteLine(freeLine(ShopNameLine, TheSettings.NazivFirme));
    output::Channel1().WriteLine(freeLine(WebAddressFreeLine, WebAddressLine));
}

void OpenFiscalFile() {
    output::Channel1().OpenForAppend(output::InProgramFolder(u'\\' + TheSettings.FiskalniFile));
}

void CloseFiscalFile() {
    output::Channel1().Sync();
    output::Channel1().Close();
}

}  // namespace

void WriteFiscalItemsByID(const QString&, const InvoiceText& invoice) {
    for (const auto& item : invoice.items) WriteItem(item, item.productID + u';');
}

void WriteFiscalItemsByCode(const QString&, const InvoiceText& invoice) {
    for (const auto& item : invoice.items) WriteItem(item, item.code + u";;;;"_s);
}

void AppendFiscalSale(const InvoiceText& invoice) {
    OpenFiscalFile();
    if (TheSettings.FiskalniRacunDA == u"1") {
        WriteFiscalItemsByID(TheSettings.PrinterZaRacun, invoice);
        WriteEndOfSale(FiscalFreeLineV);
    } else if (TheSettings.FiskalniRacunDA == u"2") {
        WriteFiscalItemsByCode(TheSettings.PrinterZaRacun, invoice);
        WriteEndOfSale(FiscalFreeLineQ);
    }
    CloseFiscalFile();
}

void AppendFiscalRecords(const QStringList& records) {
    const output::OutputGuard guard;
    OpenFiscalFile();
    for (const QString& record : records) output::Channel1().WriteLine(record);
    CloseFiscalFile();
}
