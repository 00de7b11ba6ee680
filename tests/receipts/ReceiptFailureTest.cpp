#include <QDir>

#include "ReceiptCase.h"
#include "core/Settings.h"
#include "output/NetworkPrinter.h"
#include "receipts/PrintInvoice.h"

using namespace Qt::StringLiterals;

namespace {

class ReceiptFailureTest : public ReceiptFixture {
protected:
    InvoiceText invoice = LoadShop(u"TrakaRacunaFileDA=1\nFiskalniRacunDA=1"_s);

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
    void FillUp(const QString& name) { ASSERT_TRUE(QFile::link(u"/dev/full"_s, Path(name))); }
    // Whatever went wrong, the next receipt is whole.
    void ExpectTheNextReceiptIsPrinted() {
        SetPorts("lpt1=file:next.prn\n");
        invoice = LoadShop();
        EXPECT_EQ(Print(), 0);
        EXPECT_TRUE(Read(u"next.prn"_s).startsWith("\x1Bp\0<xCorner Shop\r\n"_ba));
        EXPECT_TRUE(Read(u"next.prn"_s).endsWith("Thank you!\r\n\r\n\r\n\r\n\x1DVB\0"_ba));
    }
};

TEST_F(ReceiptFailureTest, APrinterThatIsNotThereLeavesNoRibbonAndNoFiscalRecords) {
    SetPorts("lpt1=/dev/no-such-printer\n");
    EXPECT_EQ(Print(), values::DeviceUnavailable);
    EXPECT_FALSE(Exists(u"invoices.txt"_s));
    EXPECT_FALSE(Exists(u"fiscal.txt"_s));
    ExpectTheNextReceiptIsPrinted();
}

TEST_F(ReceiptFailureTest, AFullPrinterDeviceLeavesNoRibbonAndNoFiscalRecords) {
    SetPorts("lpt1=/dev/full\n");
    EXPECT_EQ(Print(), values::DiskFull);
    EXPECT_FALSE(Exists(u"invoices.txt"_s));
    EXPECT_FALSE(Exists(u"fiscal.txt"_s));
    ExpectTheNextReceiptIsPrinted();
}

TEST_F(ReceiptFailureTest, AFullDiskUnderTheRibbonComesBehindThePaperAndBeforeTheFiscalRecords) {
    FillUp(u"invoices.txt"_s);
    EXPECT_EQ(Print(), values::DiskFull);
    EXPECT_TRUE(Read(u"lpt1.prn"_s).endsWith("\x1DVB\0"_ba));
    EXPECT_FALSE(Exists(u"fiscal.txt"_s));
    ExpectTheNextReceiptIsPrinted();
}

TEST_F(ReceiptFailureTest, AFullDiskUnderTheFiscalFileComesLast) {
    FillUp(u"fiscal.txt"_s);
    EXPECT_EQ(Print(), values::DiskFull);
    EXPECT_TRUE(Read(u"lpt1.prn"_s).endsWith("\x1DVB\0"_ba));
    EXPECT_TRUE(Read(u"invoices.txt"_s).endsWith("Thank you!\r\n\r\n\r\n"));
}

TEST_F(ReceiptFailureTest, AFiscalFileInAMissingFolderIsReported) {
    TheSettings.FiskalniFile = u"missing\\fiscal.txt"_s;
    EXPECT_EQ(Print(), values::PathNotFound);
    TheSettings.FiskalniFile.clear();
    EXPECT_EQ(Print(), values::PathFault);
}

TEST_F(ReceiptFailureTest, ACodeThatLeavesNoRoomEndsTheReceipt) {
    invoice.items[0].code = QString(40, u'7');
    EXPECT_EQ(Print(), values::InvalidCall);
    EXPECT_FALSE(Exists(u"invoices.txt"_s));
    ExpectTheNextReceiptIsPrinted();
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
