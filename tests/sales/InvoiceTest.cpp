#include <QPushButton>

#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Keys;

namespace {

const auto CancelQuestion = u"Do you want cancel the invoice?"_s;

class InvoiceTest : public drivers::TillTest {
protected:
    QPushButton* New() const { return drivers::Get<QPushButton>(Sales(), u"cmdNew"); }
};

TEST_F(InvoiceTest, TheFirstInvoiceOfAnEmptyStoreIsNumberOne) {
    LogIn();
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"1");
    EXPECT_EQ(Shown(u"txtORNumber"), u"1");
    EXPECT_EQ(New()->text(), u"F5-Print");
    EXPECT_FALSE(New()->icon().isNull());
    EXPECT_EQ(Shown(u"txtPosDisplay"), u"New Invoice");
    EXPECT_EQ(Shown(u"Text1"), u"1");
    EXPECT_EQ(Rows(u"SELECT Kas, SalesID, TotalSales, UserID, Closed, Payed, Grupni FROM Sales"_s),
              QStringList{u"0|1|0|2|False|False|"_s});
    EXPECT_EQ(mdiORVA::Window().RunningTotal(), u"0.00");
    mdiORVA::Window().resize(1366, 768);
    drivers::Settle();
    drivers::Grab(mdiORVA::Window(), u"sales-empty"_s);
}

TEST_F(InvoiceTest, RefusesAnEmptyInvoiceAndAnInvoiceWithoutCashier) {
    LogIn();
    {
        Boxes boxes;
        boxes.Expect(u"You did not enter a single item on the invoice."_s).Titled(u"VELTON POS"_s);
        Keys(u"{F5}");
    }
    Keys(u"100{Enter}{F7}");
    {
        Boxes boxes;
        boxes.Expect(u"Choose cashier."_s).WithIcon(QMessageBox::Information).Titled(u"VELTON POS"_s);
        Keys(u"{F5}");
    }
    EXPECT_EQ(New()->text(), u"F5-Print");
    EXPECT_EQ(drivers::List(Sales(), u"lv1").size(), 1u);
    EXPECT_TRUE(Rows(u"SELECT * FROM Invoices"_s).isEmpty());
}

TEST_F(InvoiceTest, CancellingLeavesTheNumbersFree) {
    LogIn();
    Keys(u"100{Enter}300");
    {
        Boxes boxes;
        boxes.Expect(CancelQuestion, QMessageBox::No).WithIcon(QMessageBox::Question).Titled(u"VELTON POS"_s);
        Keys(u"{Esc}");
    }
    EXPECT_EQ(drivers::List(Sales(), u"lv1").size(), 1u) << "anything but yes changes nothing";
    {
        Boxes boxes;
        boxes.Expect(CancelQuestion, QMessageBox::Yes);
        Keys(u"{Esc}");
    }
    EXPECT_TRUE(drivers::List(Sales(), u"lv1").empty());
    for (const char16_t* box : {u"txtProdCode", u"txtTotalAmount", u"txtTaxTotal", u"txtDescription", u"txtQuantity"})
        EXPECT_EQ(Shown(box), u"");
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"1") << "the next invoice opens by itself";
    EXPECT_TRUE(Rows(u"SELECT * FROM Invoices"_s).isEmpty());
}

TEST_F(InvoiceTest, WithoutAutomaticInvoiceTheScreenWaits) {
    Setting(u"NoviRacunAutomatski"_s, false);
    LogIn();
    Keys(u"100{Enter}");
    Boxes boxes;
    boxes.Expect(CancelQuestion, QMessageBox::Yes);
    boxes.Expect(CancelQuestion, QMessageBox::Yes);
    Keys(u"{Esc}");
    EXPECT_EQ(New()->text(), u"F5-New");
    EXPECT_FALSE(drivers::Get<QWidget>(Sales(), u"Frame2")->isEnabled());
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"");
    Keys(u"{Esc}");  // the question comes with no invoice open, too
    Keys(u"{F5}");
    EXPECT_EQ(New()->text(), u"F5-Print");
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"1");
}

TEST_F(InvoiceTest, MissingPicturesChangeNothingElse) {
    QFile::remove(Path(u"images/printer.gif"_s));
    QFile::remove(Path(u"images/pisi.gif"_s));
    LogIn();
    EXPECT_EQ(New()->text(), u"F5-Print");
}

TEST_F(InvoiceTest, ARestartGoesOnWithTheOpenPeriodAndTheNumbers) {
    LogIn();
    Keys(u"100{Enter}{F5}100{Enter}300{Enter}{F5}");
    Keys(u"200{Enter}");  // an invoice in progress is lost in the crash, and its number is free again
    Crash();
    LogIn();
    EXPECT_EQ(mdiORVA::Window().RunningTotal(), u"5.00");
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"3");
    EXPECT_EQ(Shown(u"txtORNumber"), u"3");
    EXPECT_EQ(Rows(u"SELECT SalesID FROM Sales"_s), QStringList{u"1"_s});
}

TEST_F(InvoiceTest, AClosedPeriodIsFollowedByTheNext) {
    LogIn();
    Keys(u"100{Enter}{F5}");
    Crash();
    Run(u"UPDATE Sales SET Closed = True, Grupni = 1"_s);
    LogIn();
    EXPECT_EQ(mdiORVA::Window().RunningTotal(), u"0.00");
    EXPECT_EQ(Rows(u"SELECT SalesID, Closed FROM Sales"_s), (QStringList{u"1|True"_s, u"2|False"_s}));
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"2");
}

TEST_F(InvoiceTest, TakesTheReceiptNumberOfTheHighestInvoice) {
    LogIn();
    Keys(u"100{Enter}{F5}");
    Crash();
    Run(u"UPDATE Invoices SET InvoiceID = '10', OrNo = '7'"_s);
    LogIn();
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"11");
    EXPECT_EQ(Shown(u"txtORNumber"), u"8");
}

TEST_F(InvoiceTest, FieldsForTheCustomerComeWithTheirSetting) {
    LogIn();
    EXPECT_FALSE(drivers::Get<QWidget>(Sales(), u"txtKupac")->isVisible());
    Crash();
    Setting(u"Kupac"_s, true);
    LogIn();
    EXPECT_TRUE(drivers::Get<QWidget>(Sales(), u"lblKupac")->isVisible());
    drivers::Type(Sales(), u"txtKupac", u"Ana Anić, Šibenik");
    drivers::Type(Sales(), u"txtIB", u"4200000000001");
    drivers::Type(Sales(), u"txtProdCode", u"100{Enter}{F5}");
    EXPECT_EQ(Rows(u"SELECT Kupac, IB FROM Invoices"_s), QStringList{u"Ana Anić, Šibenik|4200000000001"_s});
    EXPECT_EQ(Shown(u"txtKupac"), u"");
    mdiORVA::Window().resize(1024, 768);
    drivers::Settle();
    drivers::Grab(mdiORVA::Window(), u"sales-customer-1024"_s);
}

}  // namespace
