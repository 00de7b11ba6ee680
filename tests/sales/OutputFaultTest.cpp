#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTcpServer>

#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Keys;

namespace {

// The paper, the ribbon or the fiscal file fails: the process ends with exit code 1, and the invoice stays posted.
class OutputFaultTest : public drivers::TillTest {
protected:
    void Ports(const QByteArray& lpt1) {
        QFile ini(Path(u"ports.ini"_s));
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
        ini.write("[ports]\nlpt1=" + lpt1 + "\nlpt2=file:lpt2.prn\n");
    }

    void SellAndFail() {
        LogIn();
        {
            Boxes boxes;
            boxes.ExpectBeginning({}).WithIcon(QMessageBox::Critical);
            Keys(u"100{Enter}{F5}");
        }
        EXPECT_TRUE(forms::ProgramIsEnding());
        EXPECT_EQ(forms::ProgramExitCode(), 1);
        EXPECT_EQ(Rows(u"SELECT InvoiceID, CashAmount FROM Invoices"_s), QStringList{u"1|1.5"_s});
        EXPECT_EQ(Rows(u"SELECT Qty FROM Products WHERE ProdCode = '100'"_s), QStringList{u"19"_s});
        EXPECT_EQ(Rows(u"SELECT TotalSales FROM Sales"_s), QStringList{u"1.5"_s});
    }
};

TEST_F(OutputFaultTest, APortThatIsGone) {
    Ports("/dev/no-such-printer");
    SellAndFail();
    EXPECT_TRUE(File(u"invoices.txt"_s).isEmpty()) << "no ribbon behind a failed paper";
}

TEST_F(OutputFaultTest, APortThatIsFull) {
    Ports("/dev/full");
    SellAndFail();
    EXPECT_TRUE(File(u"invoices.txt"_s).isEmpty());
}

TEST_F(OutputFaultTest, APrinterThatRefusesTheConnection) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const quint16 port = server.serverPort();
    server.close();
    Ports("tcp:127.0.0.1:" + QByteArray::number(port));
    SellAndFail();
}

TEST_F(OutputFaultTest, AFiscalFileInAMissingFolder) {
    Setting(u"FiskalniRacunDA"_s, u"1"_s);
    Setting(u"FiskalniFile"_s, u"nowhere\\fiscal.txt"_s);
    SellAndFail();
    EXPECT_FALSE(File(u"lpt1.prn"_s).isEmpty()) << "paper and ribbon were out by then";
    EXPECT_FALSE(File(u"invoices.txt"_s).isEmpty());
}

TEST_F(OutputFaultTest, ACodeTooLongForTheFirstLayoutEndsTheReceipt) {
    Run(u"UPDATE Products SET ProdCode = '%1' WHERE ProdCode = '100'"_s.arg(QString(40, u'7')));
    LogIn();
    {
        Boxes boxes;
        boxes.ExpectBeginning(u"5"_s).WithIcon(QMessageBox::Critical);
        Keys(QString(40, u'7') + u"{Enter}{F5}"_s);
    }
    EXPECT_EQ(forms::ProgramExitCode(), 1);
    EXPECT_EQ(Rows(u"SELECT InvoiceID FROM Invoices"_s), QStringList{u"1"_s});
}

// Somebody puts a backup in the place of the store while the till is open, or clears its log away.
TEST_F(OutputFaultTest, AStoreThatIsTakenAwayIsSavedAndTakesNoMore) {
    LogIn();
    Keys(u"100{Enter}{F5}");
    for (const QString& ending : {u"-wal"_s, u"-shm"_s}) ASSERT_TRUE(QFile::remove(Path(u"ORVA.pos"_s + ending)));
    const QString sentence = u"3043The store "_s + Path(u"ORVA.pos"_s);
    {
        Boxes boxes;
        for (int i = 0; i < 2; ++i) boxes.ExpectBeginning(sentence).WithIcon(QMessageBox::Information);
        Keys(u"100{Enter}{F5}{F5}");
        EXPECT_EQ(drivers::Get<QPushButton>(Sales(), u"cmdNew")->text(), u"F5-Print"_s);

        boxes.Expect(u"Do you want to make End Report?"_s, QMessageBox::Yes);
        boxes.ExpectBeginning(sentence);
        boxes.Expect(u"Close the program?"_s, QMessageBox::Yes);
        boxes.ExpectBeginning(sentence).WithIcon(QMessageBox::Critical);
        Keys(u"{F12}");
    }
    EXPECT_EQ(forms::ProgramExitCode(), 1);
    const QStringList saved = QDir(folder.path()).entryList({u"ORVA-saved-*.pos"_s});
    ASSERT_EQ(saved.size(), 1);
    const auto copy = store::Database::Open(Path(saved.first()), store::MainSchema());
    EXPECT_EQ(copy->OpenRecordset(u"SELECT * FROM SalesDetails"_s)[u"QtySold"].Text(), u"1"_s);
}

}  // namespace
