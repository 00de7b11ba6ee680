#include <functional>

#include "ReceiptCase.h"
#include "core/Settings.h"
#include "output/NetworkPrinter.h"
#include "receipts/PrintInvoice.h"

using namespace Qt::StringLiterals;

namespace {

class ReceiptFailureTest : public ReceiptFixture {
protected:
    InvoiceText invoice;

    // The number of the error, which is one that ends the program.
    int Print() {
        int number = 0;
        try {
            PrintInvoice(invoice);
        } catch (const values::Error& error) {
            EXPECT_TRUE(error.EndsProgram());
            EXPECT_FALSE(error.Description().isEmpty());
            number = error.Number();
        }
        EXPECT_FALSE(output::Channel1().IsOpen());
        return number;
    }
    // Whatever went wrong, the next receipt is whole.
    void ExpectTheNextReceiptIsPrinted() {
        SetPorts("lpt1=file:next.prn\n");
        invoice = LoadShop();
        EXPECT_EQ(Print(), 0);
        EXPECT_TRUE(Read(u"next.prn"_s).startsWith("\x1Bp\0<xCorner Shop\r\n"_ba));
        EXPECT_TRUE(Read(u"next.prn"_s).endsWith("Thank you!\r\n\r\n\r\n\r\n\x1DVB\0"_ba));
    }
};

// The paper comes first, then the ribbon, then the fiscal records: what fails leaves nothing behind it.
TEST_F(ReceiptFailureTest, WhatFailsKeepsWhatComesBehindItFromBeingWritten) {
    struct Case {
        const char* way;
        std::function<void()> fail;
        int error;
        bool hasPaper, hasRibbon;
    };
    // A link to a device that is full has no text to be read.
    const auto text = [this](const QString& name) {
        return QFileInfo(Path(name)).isSymLink() ? QByteArray() : Read(name);
    };
    const auto port = [this](const QByteArray& place) { return [=, this] { SetPorts("lpt1=" + place + '\n'); }; };
    const auto full = [this](const QString& name) { return [=, this] { QFile::link(u"/dev/full"_s, Path(name)); }; };
    const auto fiscal = [](const QString& name) { return [=] { TheSettings.FiskalniFile = name; }; };
    const Case cases[] = {
        {"no printer", port("/dev/no-such-printer"), values::DeviceUnavailable, false, false},
        {"a full printer", port("/dev/full"), values::DiskFull, false, false},
        {"a code that leaves no room", [this] { invoice.items[0].code = QString(40, u'7'); }, values::InvalidCall,
         false, false},
        {"a full disk under the ribbon", full(u"invoices.txt"_s), values::DiskFull, true, false},
        {"a full disk under the fiscal file", full(u"fiscal.txt"_s), values::DiskFull, true, true},
        {"a fiscal file in a missing folder", fiscal(u"missing\\fiscal.txt"_s), values::PathNotFound, true, true},
        {"no name of a fiscal file", fiscal({}), values::PathFault, true, true},
    };
    for (const auto& [way, fail, error, hasPaper, hasRibbon] : cases) {
        SCOPED_TRACE(way);
        SetPorts("lpt1=file:lpt1.prn\n");
        invoice = LoadShop(u"TrakaRacunaFileDA=1\nFiskalniRacunDA=1"_s);
        fail();
        EXPECT_EQ(Print(), error);
        EXPECT_EQ(Read(u"lpt1.prn"_s).endsWith("\x1DVB\0"_ba), hasPaper);
        EXPECT_EQ(text(u"invoices.txt"_s).endsWith("Thank you!\r\n\r\n\r\n"), hasRibbon);
        EXPECT_EQ(QFile(Path(u"fiscal.txt"_s)).size(), 0);
        ExpectTheNextReceiptIsPrinted();
        for (const QString& name : {u"lpt1.prn"_s, u"next.prn"_s, u"invoices.txt"_s, u"fiscal.txt"_s})
            QFile::remove(Path(name));
    }
}

TEST_F(ReceiptFailureTest, FiguresThatAreNoNumbersEndTheReceipt) {
    for (const QString& changes :
         {u"taxTotal="_s, u"tax=1|17.00|1.00|free"_s, u"TipRacuna=5\nitem=1|a|x|1|1|17|0|b|1|1"_s,
          u"TipRacuna=5\nitem=1|a|1|1|1||0|b|1|1"_s}) {
        invoice = LoadShop(changes);
        EXPECT_EQ(Print(), values::TypeMismatch) << changes.toStdString();
    }
    invoice = LoadShop(u"TipRacuna=5\nitem=1|a|1.00|1|1.00|-100.00|0.00|b|1|1"_s);
    EXPECT_EQ(Print(), values::DivisionByZero);
    ExpectTheNextReceiptIsPrinted();
}

TEST_F(ReceiptFailureTest, ANetworkPrinterTakesTheReceiptOrTheReceiptFails) {
    invoice = LoadShop(u"TrakaRacunaFileDA=1\nFiskalniRacunDA=1"_s);
    {
        NetworkPrinter printer(NetworkPrinter::Manner::TakesAll);
        SetPorts("lpt1=tcp:127.0.0.1:" + printer.Port());
        EXPECT_EQ(Print(), 0);
        EXPECT_TRUE(printer.Taken().startsWith("\x1Bp\0<xCorner Shop\r\n"_ba));
        EXPECT_TRUE(printer.Taken().endsWith("\x1DVB\0"_ba));
        EXPECT_TRUE(Exists(u"fiscal.txt"_s));
    }
    QFile::remove(Path(u"fiscal.txt"_s));
    NetworkPrinter printer(NetworkPrinter::Manner::IsSwitchedOff);
    SetPorts("lpt1=tcp:127.0.0.1:" + printer.Port());
    EXPECT_EQ(Print(), values::DeviceError);
    EXPECT_FALSE(Exists(u"fiscal.txt"_s));
}

}  // namespace
