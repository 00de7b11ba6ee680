#include <malloc.h>

#include <QApplication>
#include <QLabel>
#include <QTimer>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "output/NetworkPrinter.h"
#include "support/Disk.h"
#include "support/Engines.h"
#include "support/Files.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Keys;

namespace {

// How often this thread went to sleep.
long Sleeps() {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
}

// Does something as soon as the notice of a wait stands, and counts the naps that are taken after that.
class AtNotice {
public:
    explicit AtNotice(std::function<void()> act) : act_(std::move(act)) {
        QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
        timer_.start(20);
    }
    const QString& Said() const { return said_; }
    long Naps() const { return Sleeps() - before_; }

private:
    void Look() {
        const auto widgets = QApplication::allWidgets();
        const auto found = std::ranges::find(widgets, u"panelLongWork"_s, &QWidget::objectName);
        if (found == widgets.end() || !said_.isEmpty()) return;
        said_ = (*found)->findChild<QLabel*>()->text();
        drivers::Grab(*(*found)->window(), u"posting-waits"_s);
        before_ = Sleeps();
        act_();
    }

    std::function<void()> act_;
    QString said_;
    long before_ = 0;
    QTimer timer_;
};

class PostingTest : public drivers::TillTest {
protected:
    QString Stock(const QString& code) const {
        return Rows(u"SELECT Qty FROM Products WHERE ProdCode = '%1'"_s.arg(code)).value(0);
    }
    void Ports(const QByteArray& lpt1) const {
        drivers::WriteFile(Path(u"ports.ini"_s), "[ports]\nlpt1=" + lpt1 + '\n');
    }
};

TEST_F(PostingTest, AStockThatCannotBeWrittenIsWaitedForUntilItCanOrTheCashierLeaves) {
    LogIn();
    const auto refuse = [this] {
        drivers::DoBehind(folder.path(),
                          u"CREATE TRIGGER stop BEFORE UPDATE ON Products WHEN old.ProdCode = '300' BEGIN "
                          "SELECT raise(ABORT, 'no room'); END"_s,
                          u"CREATE FUNCTION stop() RETURNS trigger LANGUAGE plpgsql AS "
                          "$$ BEGIN RAISE EXCEPTION 'no room'; END $$; "
                          "CREATE TRIGGER stop BEFORE UPDATE ON \"Products\" FOR EACH ROW "
                          "WHEN (old.\"ProdCode\" = '300') EXECUTE FUNCTION stop()"_s);
    };
    refuse();
    {
        const AtNotice notice(
            [this] { drivers::DoBehind(folder.path(), u"DROP TRIGGER stop"_s, u"DROP FUNCTION stop CASCADE"_s); });
        Keys(u"100{Enter}300{Enter}{F5}");
        EXPECT_TRUE(notice.Said().startsWith(u"The stock of Novine can't be written yet."_s))
            << notice.Said().toStdString();
    }
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"2");
    EXPECT_EQ(Stock(u"300"_s), u"9");

    refuse();
    const AtNotice leave([] { Keys(u"{Esc}"); });
    Boxes boxes;
    boxes.Expect(
        u"3200Other rows of the store refer to this one%1 (no room).\n"
        "Invoice 2 is stored with 1 of its 2 lines. These stay, and so does the stock taken off."_s.arg(
            drivers::OnServer() ? QString() : u", running a query"_s));
    Keys(u"100{Enter}300{Enter}{F5}");
    EXPECT_EQ(Shown(u"cmdNew"), u"F5-Print");
    EXPECT_EQ(Rows(u"SELECT InvoiceID, ProdCode FROM SalesDetails"_s),
              (QStringList{u"1|100"_s, u"1|300"_s, u"2|100"_s}));
    EXPECT_EQ(Stock(u"100"_s) + u' ' + Stock(u"300"_s), u"18 9");
}

// One that goes on to its end looks hundreds of times whether the other is done, and sleeps in between.
TEST_F(PostingTest, AnotherWriterIsWaitedForAndCanBeLeft) {
    const auto other = OpenMain();
    const auto leave = [&other](const QString& keys) {
        const store::Database::Batch held(*other);
        Boxes boxes;
        boxes.ExpectBeginning(u"3218"_s);
        const AtNotice notice([] { Keys(u"{Esc}"); });
        Keys(keys);
        EXPECT_FALSE(notice.Said().isEmpty()) << keys.toStdString();
        EXPECT_LT(notice.Naps(), 150) << keys.toStdString();
    };
    ShowLogin();
    drivers::Type(Login(), u"txtUserName", u"kasir");
    drivers::Type(Login(), u"txtPassword", u"1234");
    leave(u"{Enter}"_s);
    Keys(u"{Enter}100{Enter}");
    leave(u"{F5}"_s);
    EXPECT_TRUE(Rows(u"SELECT InvoiceID FROM Invoices"_s).isEmpty());
}

TEST_F(PostingTest, APrinterThatTakesNothingIsWaitedForUntilTheCashierLeaves) {
    const QByteArray pipe = Path(u"pipe"_s).toUtf8();
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    const int reader = ::open(pipe.constData(), O_RDWR | O_NONBLOCK);
    while (::write(reader, QByteArray(4096, 'x').constData(), 4096) > 0) {
    }
    Ports("pipe");
    LogIn();
    const AtNotice notice([] { Keys(u"{F5}7{Esc}"); });
    {
        Boxes boxes;
        boxes.ExpectBeginning({}).WithIcon(QMessageBox::Critical);
        Keys(u"100{Enter}{F5}");
    }
    EXPECT_TRUE(notice.Said().startsWith(u"Waiting for the printer on LPT1 ("_s)) << notice.Said().toStdString();
    EXPECT_EQ(forms::ProgramExitCode(), 1);
    EXPECT_EQ(Rows(u"SELECT InvoiceID, CashAmount FROM Invoices"_s), QStringList{u"1|1.5"_s});
    EXPECT_TRUE(File(u"invoices.txt"_s).isEmpty());
    ::close(reader);
}

TEST_F(PostingTest, APrinterThatCannotPrintIsToldOfBeforeTheFirstByte) {
    const auto asks = [](const char16_t* trouble) {
        return u"The printer on LPT1 %1. Nothing is printed yet.\n\nYes: look at it again. No: print all the same."_s
            .arg(trouble);
    };
    const QList<QByteArray> noPaper = {"\x1A", "\x32", "\x72"};
    const QList<QByteArray> ready = {"\x12", "\x12", "\x12"};
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

TEST_F(PostingTest, APostingThatTheDiskRefusesMovesNoPaper) {
    LogIn();
    drivers::diskRefuses = true;
    Boxes boxes;
    boxes.ExpectBeginning(u"3043The disk or the network refused the access"_s);
    Keys(u"100{Enter}{F5}");
    drivers::diskRefuses = false;
    EXPECT_TRUE(File(u"lpt1.prn"_s).isEmpty());
    EXPECT_EQ(Shown(u"cmdNew"), u"F5-Print"_s);
}

// The store keeps the pages of new rows in memory up to its limit; nothing else may stay.
TEST_F(PostingTest, ManyInvoicesLeaveHardlyAnythingInMemory) {
    LogIn();
    const auto sell = [](int invoices) {
        for (int i = 0; i < invoices; ++i) {
            Keys(u"100{Enter}{F5}");
            drivers::Settle();
        }
        return mallinfo2().uordblks + mallinfo2().hblkhd;
    };
    const size_t early = sell(50);
    const size_t late = sell(200);
    RecordProperty("bytes", static_cast<int>(late - early) / 200);
    EXPECT_LT(late, early + 200 * 1500);
}

}  // namespace
