#include <SQLiteCpp/SQLiteCpp.h>
#include <malloc.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "core/Session.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Keys;

namespace {

class PostingTest : public drivers::TillTest {
protected:
    QString Stock(const QString& code) const {
        return Rows(u"SELECT Qty FROM Products WHERE ProdCode = '%1'"_s.arg(code)).value(0);
    }
};

TEST_F(PostingTest, WritesHeadLinesStockAndPeriod) {
    Setting(u"Kasa"_s, 3);
    LogIn();
    Keys(u"100{Enter}100{Enter}300{Enter}{F5}");
    EXPECT_EQ(Rows(u"SELECT Kas, SalesID, InvoiceID, OrNo, CashierID, CashierName, PaymentType, CashAmount, TaxTotal, "
                   u"CheckAmount, "
                   u"CheckNo, Bank, Kupac, IB FROM Invoices WHERE DateSold = #11-24-2026#"_s),
              QStringList{u"0|1|1|1|2|%1|0|5|0.44|0|0| ||"_s.arg(TheSession.SessionUserName)});
    EXPECT_EQ(Rows(u"SELECT Kas, InvoiceID, ProdCode, ProdDescription, UnitPrice, QtySold, Amount, TaxPercent, "
                   u"TaxAmount, Unit, "
                   u"TaxID FROM SalesDetails"_s),
              (QStringList{u"0|1|100|Cola|1.5|2|3|17|0.44|pcs|P"_s, u"0|1|300|Novine|2|1|2|0|0|pcs|N"_s}));
    EXPECT_EQ(Stock(u"100"_s), u"18");
    EXPECT_EQ(Stock(u"300"_s), u"9");
    EXPECT_EQ(Rows(u"SELECT TotalSales FROM Sales WHERE DateStoped = #11-24-2026#"_s), QStringList{u"5"_s});
    EXPECT_EQ(mdiORVA::Window().RunningTotal(), u"5.00");
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"2");
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"");
    EXPECT_TRUE(drivers::List(Sales(), u"lv1").empty());
}

TEST_F(PostingTest, ACompositeTakesItsComponents) {
    LogIn();
    drivers::Type(Sales(), u"txtProdCode", u"400{Tab}3{Enter}{F5}");
    EXPECT_EQ(Stock(u"100"_s), u"14");
    EXPECT_EQ(Stock(u"200"_s), u"48.5");
    EXPECT_EQ(Stock(u"400"_s), u"0");
}

TEST_F(PostingTest, ACompositionGoesOneLevelDeep) {
    Run(u"UPDATE ProductsCon SET SIF = '300' WHERE CONsif = '200'"_s);
    Run(u"UPDATE ProductsCon SET CONsif = '300' WHERE CONsif = '100'"_s);
    LogIn();
    Keys(u"400{Enter}{F5}");
    EXPECT_EQ(Stock(u"300"_s), u"8");
    EXPECT_EQ(Stock(u"200"_s), u"50");
}

TEST_F(PostingTest, StockMayFallBelowZeroAndANegativeLineAdds) {
    LogIn();
    drivers::Type(Sales(), u"txtProdCode", u"300{Tab}11{Enter}");
    drivers::Type(Sales(), u"txtProdCode", u"100{Tab}-2{Enter}");
    Keys(u"{F5}");
    EXPECT_EQ(Stock(u"300"_s), u"-1");
    EXPECT_EQ(Stock(u"100"_s), u"22");
    EXPECT_EQ(mdiORVA::Window().RunningTotal(), u"19.00");
}

TEST_F(PostingTest, AProductDeletedMeanwhileStopsThePostingWithItsError) {
    LogIn();
    Keys(u"300{Enter}");
    Run(u"DELETE * FROM Products WHERE ProdCode = '300'"_s);
    {
        Boxes boxes;
        boxes.Expect(
            u"3021No current row.\n"
            u"Invoice 1 is stored with 0 of its 1 lines. These stay, and so does the stock taken off."_s);
        Keys(u"{F5}");
    }
    EXPECT_EQ(Shown(u"cmdNew"), u"F5-Print");
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"1");
    EXPECT_EQ(Rows(u"SELECT InvoiceID FROM Invoices"_s), QStringList{u"1"_s}) << "what was written stays written";
    EXPECT_TRUE(File(u"lpt1.prn"_s).isEmpty());

    // Pressed again, the invoice is posted once more under the numbers shown, and the next one skips a number.
    Run(u"UPDATE Products SET ProdCode = '300' WHERE ProdCode = '100'"_s);
    Keys(u"{F5}");
    EXPECT_EQ(Rows(u"SELECT InvoiceID FROM Invoices"_s), (QStringList{u"1"_s, u"1"_s}));
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"3");
}

TEST_F(PostingTest, AStockThatCannotBeWrittenIsWaitedForUntilItCanOrTheCashierLeaves) {
    LogIn();
    SQLite::Database raw(Path(u"ORVA.pos"_s).toStdString(), SQLite::OPEN_READWRITE);
    const auto refuse = [&] {
        raw.exec(
            "CREATE TRIGGER stop BEFORE UPDATE ON Products WHEN old.ProdCode = '300' BEGIN "
            "SELECT raise(ABORT, 'no room'); END");
    };
    const auto onNotice = [this](std::function<void(QWidget*)> act) {
        QTimer::singleShot(1100, qApp, [this, act] {
            auto* notice = Sales().findChild<QLabel*>(u"lblWaitsFor"_s);
            ASSERT_TRUE(notice);
            EXPECT_TRUE(notice->text().startsWith(u"The stock of Novine can't be written yet."))
                << notice->text().toStdString();
            drivers::Grab(Sales(), u"frmORVAtouch-waiting"_s);
            act(QApplication::focusWidget());
        });
    };
    refuse();
    Keys(u"100{Enter}300{Enter}");
    onNotice([&](QWidget*) { raw.exec("DROP TRIGGER stop"); });
    Keys(u"{F5}");
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"2");
    EXPECT_EQ(Stock(u"300"_s), u"9");

    refuse();
    Keys(u"100{Enter}300{Enter}");
    Boxes boxes;
    boxes.Expect(
        u"3200Other rows of the store refer to this one, running a query (no room).\n"
        u"Invoice 2 is stored with 1 of its 2 lines. These stay, and so does the stock taken off."_s);
    onNotice([](QWidget* focus) { QTest::keyClick(focus, Qt::Key_Escape); });
    Keys(u"{F5}");
    EXPECT_EQ(Shown(u"cmdNew"), u"F5-Print");
    EXPECT_EQ(Rows(u"SELECT InvoiceID, ProdCode FROM SalesDetails"_s),
              (QStringList{u"1|100"_s, u"1|300"_s, u"2|100"_s}));
    EXPECT_EQ(Stock(u"100"_s) + u' ' + Stock(u"300"_s), u"18 9");
}

TEST_F(PostingTest, AnotherWriterIsWaitedForAndCanBeLeft) {
    SQLite::Database other(Path(u"ORVA.pos"_s).toStdString(), SQLite::OPEN_READWRITE);
    const auto leave = [&other](const QString& keys) {
        other.exec("BEGIN IMMEDIATE");
        Boxes boxes;
        boxes.ExpectBeginning(u"3218"_s);
        QTimer::singleShot(1100, qApp, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
        QElapsedTimer time;
        time.start();
        Keys(keys);
        EXPECT_LT(time.elapsed(), 2500) << keys.toStdString();
        other.exec("ROLLBACK");
    };
    ShowLogin();
    drivers::Type(Login(), u"txtUserName", u"kasir");
    drivers::Type(Login(), u"txtPassword", u"1234");
    leave(u"{Enter}"_s);
    Keys(u"{Enter}100{Enter}");
    leave(u"{F5}"_s);
    EXPECT_TRUE(Rows(u"SELECT InvoiceID FROM Invoices"_s).isEmpty());
}

TEST_F(PostingTest, TheReceiptLiesInThePortOnTheRibbonAndInTheFiscalFile) {
    Setting(u"FiskalniRacunDA"_s, u"2"_s);
    Setting(u"FiskalniFile"_s, u"fiscal.txt"_s);
    LogIn();
    Keys(u"100{Enter}300{Enter}{F5}");
    const QByteArray paper = File(u"lpt1.prn"_s);
    EXPECT_TRUE(paper.startsWith("\x1Bp" + QByteArray("\0", 1) + "<x")) << "the drawer opens first";
    EXPECT_TRUE(paper.endsWith("\x1DVB" + QByteArray("\0", 1))) << "and the paper is cut last";
    EXPECT_TRUE(paper.contains("INVOICE No:1    24.11.2026  10:42:07\r\n"));
    EXPECT_TRUE(paper.contains("TOTAL.........KM: 3.50\r\n"));
    const QByteArray ribbon = File(u"invoices.txt"_s);
    EXPECT_TRUE(ribbon.contains("INVOICE No:1    24.11.2026  10:42:07\r\n"));
    EXPECT_FALSE(ribbon.contains('\x1B'));
    EXPECT_TRUE(File(u"fiscal.txt"_s).startsWith("S,1,______,_,__;Cola;1.50;1.000;1;1;2;0;100;;;;\r\n"));
}

TEST_F(PostingTest, OtherCursorsSeeWhatThisOneWrote) {
    LogIn();
    Keys(u"100{Enter}{F5}");
    EXPECT_EQ(Rows(u"SELECT Max(Val([InvoiceID])) AS [current] FROM Invoices"_s), QStringList{u"1"_s});
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
    EXPECT_LT(sell(400), early + 400 * 1500);
}

}  // namespace
