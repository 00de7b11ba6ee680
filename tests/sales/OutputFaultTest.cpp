#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTcpServer>
#include <QTimer>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/mdiORVA.h"
#include "output/NetworkPrinter.h"
#include "support/Disk.h"
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

class PortFaultTest : public OutputFaultTest, public testing::WithParamInterface<const char*> {};

TEST_P(PortFaultTest, LeavesNoRibbonBehindAFailedPaper) {
    Ports(GetParam());
    SellAndFail();
    EXPECT_TRUE(File(u"invoices.txt"_s).isEmpty());
}
INSTANTIATE_TEST_SUITE_P(All, PortFaultTest,
                         testing::Values("/dev/no-such-printer", "/dev/full", "tcp:127.0.0.1:1", "tcp:[::1"));

TEST_F(OutputFaultTest, APrinterThatTakesNothingIsWaitedForUntilTheCashierLeaves) {
    const QByteArray pipe = Path(u"pipe"_s).toUtf8();
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    const int reader = ::open(pipe.constData(), O_RDWR | O_NONBLOCK);
    while (::write(reader, QByteArray(4096, 'x').constData(), 4096) > 0) {
    }
    Ports("pipe");
    QString said;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const auto* notice = mdiORVA::Window().findChild<QWidget*>(u"panelLongWork"_s);
        if (!notice || !said.isEmpty()) return;
        said = notice->findChild<QLabel*>()->text();
        drivers::Grab(mdiORVA::Window(), u"printer-waited-for"_s);
        Keys(u"{F5}7{Esc}");
    });
    timer.start(20);
    SellAndFail();
    EXPECT_TRUE(said.startsWith(u"Waiting for the printer on LPT1 ("_s)) << said.toStdString();
    EXPECT_TRUE(File(u"invoices.txt"_s).isEmpty());
    ::close(reader);
}

TEST_F(OutputFaultTest, APrinterThatCannotPrintIsToldOfBeforeTheFirstByte) {
    const auto asks = [](const char16_t* trouble) {
        return u"The printer on LPT1 %1. Nothing is printed yet.\n\nYes: look at it again. No: print all the same."_s
            .arg(trouble);
    };
    const QList<QByteArray> noPaper = {"\x1A", "\x32", "\x72"};
    const QList<QByteArray> ready = {"\x12", "\x12", "\x12"};
    Ports("file:lpt1.prn");
    LogIn();
    Boxes boxes;
    for (const bool isLooked : {true, false}) {
        NetworkPrinter printer(isLooked ? noPaper + ready : QList<QByteArray>{NetworkPrinter::HangsUp});
        Ports("tcp:127.0.0.1:" + printer.Port() + "\nlpt1.status=yes");
        boxes.Expect(asks(isLooked ? u"has no paper" : u"does not answer"),
                     isLooked ? QMessageBox::Yes : QMessageBox::No);
        Keys(u"100{Enter}{F5}");
        EXPECT_EQ(boxes.Left(), 0);
        const QByteArray paper = printer.Taken();
        EXPECT_TRUE(paper.startsWith("\x1Bp\0<x"_ba) && paper.endsWith("\x1DVB\0"_ba));
        EXPECT_EQ(paper.count("\x1Bp"), 1);
    }
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM Invoices"_s), QStringList{u"2"_s});
    EXPECT_FALSE(forms::ProgramIsEnding());
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

TEST_F(OutputFaultTest, APostingThatTheDiskRefusesMovesNoPaper) {
    LogIn();
    drivers::diskRefuses = true;
    Boxes boxes;
    boxes.ExpectBeginning(u"3043The disk or the network refused the access"_s);
    Keys(u"100{Enter}{F5}");
    drivers::diskRefuses = false;
    EXPECT_TRUE(File(u"lpt1.prn"_s).isEmpty());
    EXPECT_EQ(drivers::Get<QPushButton>(Sales(), u"cmdNew")->text(), u"F5-Print"_s);
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
        boxes.Expect(u"Do you want to make End Report?"_s, QMessageBox::No);
        boxes.Expect(u"Close the program?"_s, QMessageBox::Yes);
        boxes.ExpectBeginning(sentence).WithIcon(QMessageBox::Critical);
        Keys(u"{F12}{F12}");
    }
    EXPECT_EQ(forms::ProgramExitCode(), 1);
    const QStringList saved = QDir(folder.path()).entryList({u"ORVA-saved-*.pos"_s});
    ASSERT_EQ(saved.size(), 1);
    const auto copy = store::Database::Open(Path(saved.first()), store::MainSchema());
    EXPECT_EQ(copy->OpenRecordset(u"SELECT * FROM SalesDetails"_s)[u"QtySold"].Text(), u"1"_s);
}

}  // namespace
