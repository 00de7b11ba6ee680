#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include "core/Settings.h"
#include "forms/ListView.h"
#include "support/Till.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Keys;
using drivers::List;

namespace {

const auto Unknown = u"Product with this ID-barcode does not exist."_s;

class ItemEntryTest : public drivers::TillTest {
protected:
    ItemEntryTest() = default;

    QStringList Line(size_t row = 0) const { return List(Sales(), u"lv1").at(row); }
    QString Focus() const {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    forms::ListView* Lines() const { return drivers::Get<forms::ListView>(Sales(), u"lv1"); }
};

TEST_F(ItemEntryTest, ScanningThreeTimesGivesOneLineOfThree) {
    LogIn();
    Keys(u"3850104003217{Enter}");
    EXPECT_EQ(Line(), (QStringList{u"3850104003217"_s, u"Mlijeko 2,8 % 1 l"_s, u"2.35"_s, u"1"_s, u"2.35"_s, u"17.00"_s,
                                   u"0.34"_s, u"pcs"_s, u"P"_s,
                                   Rows(u"SELECT ID FROM Products WHERE ProdCode = '3850104003217'"_s)[0]}));
    EXPECT_EQ(Shown(u"txtPosDisplay"), u"1 x Mlijeko 2,8 % 1 l   2.35 = 2.35");
    Keys(u"3850104003217{Enter}3850104003217{Enter}");
    ASSERT_EQ(List(Sales(), u"lv1").size(), 1u);
    EXPECT_EQ(Line()[3], u"3");
    EXPECT_EQ(Line()[4], u"7.05");
    EXPECT_EQ(Line()[6], u"1.02");
    EXPECT_EQ(Shown(u"txtPosDisplay"), u"3 x Mlijeko 2,8 % 1 l   2.35 = 7.05");
    EXPECT_EQ(Focus(), u"txtProdCode");
}

TEST_F(ItemEntryTest, TotalsAndTaxesFollowTheLines) {
    LogIn();
    Keys(u"100{Enter}300{Enter}3850104003217{Enter}");
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"5.85");
    EXPECT_EQ(Shown(u"txtTaxTotal"), u"0.56");
    EXPECT_EQ(List(Sales(), u"lvPorez"), (std::vector<QStringList>{{u"P"_s, u""_s, u"17.00"_s, u"3.85"_s, u"0.56"_s},
                                                                   {u"N"_s, u""_s, u"0.00"_s, u"2.00"_s, u"0.00"_s}}));
    drivers::ClickRow(Lines(), 1);
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"3.85");
    EXPECT_EQ(List(Sales(), u"lvPorez").size(), 1u);
}

TEST_F(ItemEntryTest, AWeighedUnitStopsAtTheQuantity) {
    LogIn();
    Keys(u"200{Enter}");
    EXPECT_EQ(Focus(), u"txtQuantity");
    EXPECT_TRUE(List(Sales(), u"lv1").empty());
    Keys(u"1.254{Enter}");
    EXPECT_EQ(Line()[3], u"1.254");
    EXPECT_EQ(Line()[4], u"4.89");
    EXPECT_EQ(Focus(), u"txtProdCode");
}

TEST_F(ItemEntryTest, WithoutScannerEnterGoesOnToTheQuantity) {
    Setting(u"SkenerPrimarno"_s, u"0"_s);
    LogIn();
    Keys(u"100{Enter}");
    EXPECT_EQ(Focus(), u"txtQuantity");
    Keys(u"2{Enter}");
    EXPECT_EQ(Line()[3], u"2");
    {
        Boxes boxes;
        boxes.Expect(Unknown).Titled(u"VELTON POS"_s);
        Keys(u"9999999999994{Enter}");  // the posting card is just an unknown code here
    }
    EXPECT_EQ(Shown(u"txtProdCode"), u"");
}

TEST_F(ItemEntryTest, TellsAnUnknownCode) {
    LogIn();
    {
        Boxes boxes;
        boxes.Expect(Unknown)
            .WithIcon(QMessageBox::Information)
            .Titled(u"Product with this ID-barcode does not exist"_s);
        Keys(u"777{Enter}");
    }
    EXPECT_EQ(Shown(u"txtProdCode"), u"777") << "kept and selected";
    Keys(u"100");
    EXPECT_EQ(Shown(u"txtProdCode"), u"100");
    EXPECT_EQ(Shown(u"txtDescription"), u"Cola");
    Keys(u"5");
    EXPECT_EQ(Shown(u"txtDescription"), u"") << "the match is exact";
    Boxes boxes;
    boxes.Expect(Unknown).Titled(u"VELTON POS"_s);
    Keys(u"{Tab}");
    EXPECT_EQ(Shown(u"txtProdCode"), u"");
}

TEST_F(ItemEntryTest, ThePostingCardPostsTheInvoice) {
    LogIn();
    Keys(u"{Enter}");  // an empty code is nothing
    Keys(u"100{Enter}9999999999994{Enter}");
    EXPECT_EQ(Rows(u"SELECT InvoiceID, CashAmount FROM Invoices"_s), QStringList{u"1|1.5"_s});
}

TEST_F(ItemEntryTest, QuantitiesAreCutToThreeDecimals) {
    LogIn();
    struct Case {
        const char16_t* typed;
        const char16_t* quantity;
        const char16_t* amount;
    };
    for (const auto& [typed, quantity, amount] :
         {Case{u"1.2345", u"1.234", u"4.81"}, Case{u"-1.2345", u"-1.235", u"-4.82"}, Case{u"0", u"0", u"0.00"},
          Case{u"-2", u"-2", u"-7.80"}, Case{u"12x3", u"123", u"479.70"}}) {
        drivers::Type(Sales(), u"txtProdCode", u"200{Enter}");
        Keys(typed);
        EXPECT_EQ(Shown(u"txtQuantity"), quantity);
        EXPECT_EQ(Shown(u"txtPrice"), amount);
    }
}

TEST_F(ItemEntryTest, ALoneMinusWaitsForItsNumber) {
    LogIn();
    Keys(u"200{Enter}-");
    EXPECT_EQ(Shown(u"txtQuantity"), u"-");
    Keys(u"-");
    EXPECT_EQ(Shown(u"txtQuantity"), u"") << "two of them are no number";
    drivers::Type(Sales(), u"txtProdCode", u"200{Enter}-");
    Boxes boxes;
    boxes.ExpectBeginning(u"13"_s);
    Keys(u"{Enter}2{Enter}");
    EXPECT_EQ(Line()[3], u"-2") << "the sign stays while the box is up";
}

TEST_F(ItemEntryTest, WhatComesUpInBetweenLeavesCaretAndSelectionAlone) {
    LogIn();
    Boxes boxes;
    boxes.Expect(u"Do you want cancel the invoice?"_s, QMessageBox::No);
    boxes.ExpectForm(u"frmTrakaRacuna"_s, [](QWidget&) { Keys(u"{Esc}"); });
    Keys(u"1{Esc}0{F8}0");
    EXPECT_EQ(Shown(u"txtDescription"), u"Cola");
    boxes.Expect(u"Do you want to make End Report?"_s, QMessageBox::No);
    boxes.Expect(u"Close the program?"_s, QMessageBox::No);
    Keys(u"{Tab}12{F12}5{Enter}");
    EXPECT_EQ(Line()[3], u"125");
}

TEST_F(ItemEntryTest, AnOverflowingQuantityIsIllogical) {
    LogIn();
    Keys(u"200{Enter}");
    QApplication::clipboard()->setText(u"1000000000000"_s);
    Boxes boxes;
    boxes.Expect(u"Illogical quantity. "_s).WithIcon(QMessageBox::Information).Titled(u"CHANGE QUANTITY"_s);
    Keys(u"{Ctrl+v}");
    EXPECT_EQ(Shown(u"txtQuantity"), u"");
}

TEST_F(ItemEntryTest, ANegativeMergeLeavesALineOfNothing) {
    LogIn();
    Keys(u"100{Enter}");
    drivers::Type(Sales(), u"txtProdCode", u"100{Tab}-1{Enter}");
    EXPECT_EQ(Line()[3], u"0");
    EXPECT_EQ(Line()[4], u"0.00");
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"0.00");
}

TEST_F(ItemEntryTest, AMergeTakesPriceAndRateOfNow) {
    LogIn();
    Keys(u"100{Enter}");
    Run(u"UPDATE Products SET UnitPrice = 2, TaxPercent = 10 WHERE ProdCode = '100'"_s);
    Keys(u"100{Enter}");
    EXPECT_EQ(Line()[2], u"1.50") << "the price column keeps what it shows";
    EXPECT_EQ(Line()[4], u"4.00");
    EXPECT_EQ(Line()[6], u"0.36");
}

TEST_F(ItemEntryTest, ALineTakenBackKeepsItsRateAndTheTaxOfIt) {
    LogIn();
    for (const auto& quantity : {u"1"_s, u"2"_s}) {
        drivers::Type(Sales(), u"txtProdCode", u"200{Enter}"_s + quantity + u"{Enter}"_s);
        Run(u"UPDATE Products SET TaxPercent = 10 WHERE ProdCode = '200'"_s);
        const QStringList before = Line();
        drivers::ClickRow(Lines(), 0, Qt::RightButton);
        Keys(u"{Enter}");
        EXPECT_EQ(Line(), before);
        Run(u"UPDATE Products SET TaxPercent = 17 WHERE ProdCode = '200'"_s);
        drivers::ClickRow(Lines(), 0);
    }
}

TEST_F(ItemEntryTest, AClickDeletesAndTheRightButtonTakesBack) {
    LogIn();
    Keys(u"100{Enter}200{Enter}2{Enter}300{Enter}");
    drivers::ClickRow(Lines(), 1, Qt::RightButton);
    EXPECT_EQ(Shown(u"txtProdCode"), u"200");
    EXPECT_EQ(Shown(u"txtQuantity"), u"2");
    EXPECT_EQ(Focus(), u"txtQuantity");
    EXPECT_EQ(Lines()->Count(), 2) << "it is off the invoice until it is added again";
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"3.50");
    Keys(u"3{Enter}");
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"15.20");
    Lines()->Select(0);
    drivers::ClickRow(Lines(), -1);
    EXPECT_EQ(Lines()->Text(0), u"300") << "a click on the empty part deletes the selected row";
    Lines()->setFocus();
    Lines()->Select(1);
    Keys(u"{Ins}");
    EXPECT_EQ(Shown(u"txtQuantity"), u"3");
    Lines()->setFocus();
    Lines()->Select(0);
    Keys(u"{Del}");
    EXPECT_EQ(Lines()->Count(), 0);
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"0.00");
}

TEST_F(ItemEntryTest, TheScannerTypesOnWhateverWasTouchedLast) {
    LogIn();
    Keys(u"100{Enter}");
    {
        Boxes boxes;
        boxes.Expect(u"Do you want cancel the invoice?"_s, QMessageBox::No);
        drivers::Click(drivers::Get<QWidget>(Sales(), u"cmdESCponisti"));
    }
    Keys(u"300{Enter}");
    drivers::Click(drivers::Get<QWidget>(Sales(), u"Command2_31"));
    Keys(u"3850104003217{Enter}");
    EXPECT_EQ(Lines()->Count(), 3);
    drivers::ClickRow(Lines(), 0);
    Keys(u"100{Enter}");
    EXPECT_EQ(Lines()->Text(2), u"100");
}

TEST_F(ItemEntryTest, OneProductHasOneLineInAnyCase) {
    Run(u"UPDATE Products SET ProdCode = 'Čaj1' WHERE ProdCode = '100'"_s);
    LogIn();
    Keys(u"Čaj1{Enter}čAJ1{Enter}");
    ASSERT_EQ(Lines()->Count(), 1);
    EXPECT_EQ(Line()[3], u"2");
}

TEST_F(ItemEntryTest, AProductWithoutFiguresLeavesNoLine) {
    Run(u"UPDATE Products SET TaxPercent = Null WHERE ProdCode = '100'"_s);
    LogIn();
    Boxes boxes;
    boxes.ExpectBeginning(u"13"_s);
    Keys(u"100{Enter}");
    EXPECT_EQ(Lines()->Count(), 0);
    drivers::Type(Sales(), u"txtProdCode", u"300{Enter}");
    Run(u"UPDATE Products SET UnitPrice = Null WHERE ProdCode = '300'"_s);
    boxes.ExpectBeginning(u"13"_s);
    drivers::Type(Sales(), u"txtProdCode", u"300{Enter}{F5}");
    EXPECT_EQ(Rows(u"SELECT CashAmount FROM Invoices"_s), QStringList{u"2"_s});
    EXPECT_EQ(Rows(u"SELECT QtySold, Amount FROM SalesDetails"_s), QStringList{u"1|2"_s});
}

TEST_F(ItemEntryTest, LargeFiguresShrinkInsteadOfLosingDigits) {
    Run(u"UPDATE Products SET UnitPrice = 1234567.89 WHERE ProdCode = '200'"_s);
    LogIn();
    mdiORVA::Window().showNormal();
    mdiORVA::Window().resize(1024, 768);
    Keys(u"200{Enter}98.765");
    for (const char16_t* name : {u"txtUnitPrice", u"txtPrice"}) {
        auto* box = drivers::Get<QLineEdit>(Sales(), name);
        EXPECT_LT(box->fontMetrics().horizontalAdvance(box->text()), box->width()) << box->text().toStdString();
    }
    Keys(u"{Enter}100{Enter}");
    EXPECT_EQ(Line()[2], u"1234567.89");
    auto* total = drivers::Get<QLineEdit>(Sales(), u"txtTotalAmount");
    EXPECT_EQ(total->text(), u"121932099.16");
    EXPECT_LT(total->fontMetrics().horizontalAdvance(total->text()), total->width());
    drivers::Settle();
    EXPECT_EQ(mdiORVA::Window().width(), 1024) << "whole screens fit 1024x768";
    drivers::Grab(mdiORVA::Window(), u"sales-large-1024"_s);
}

TEST_F(ItemEntryTest, TheAddButtonNeedsCodeQuantityAndProduct) {
    LogIn();
    const auto* add = drivers::Get<QWidget>(Sales(), u"cmdAddItem");
    EXPECT_FALSE(add->isEnabled());
    Keys(u"10");
    EXPECT_FALSE(add->isEnabled());
    Keys(u"0");
    EXPECT_TRUE(add->isEnabled());
    Keys(u"{Tab}{Backspace}");
    EXPECT_FALSE(add->isEnabled());
    EXPECT_EQ(Focus(), u"txtProdCode") << "an emptied quantity goes back to the code";
}

TEST_F(ItemEntryTest, AnApostropheIsPassedOverWhileTypingAndToldOnEnter) {
    LogIn();
    Keys(u"100'");
    EXPECT_EQ(Shown(u"txtDescription"), u"Cola") << "the fields keep what they had";
    Boxes boxes;
    boxes.ExpectBeginning(u"3075"_s);
    Keys(u"{Enter}");
}

TEST_F(ItemEntryTest, ReadsAndWritesNumbersInTheUsersLocale) {
    values::SetUserLocale(QLocale(u"hr_HR"_s));
    LogIn();
    Keys(u"200{Enter}1.254{Enter}3850104003217{Enter}");
    EXPECT_EQ(Line(0)[3], u"1,254");
    EXPECT_EQ(Line(0)[4], u"4,89");
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"7,24");
    Keys(u"{F5}");
    EXPECT_EQ(Rows(u"SELECT QtySold, Amount FROM SalesDetails"_s), (QStringList{u"1,254|4,89"_s, u"1|2,35"_s}));
    mdiORVA::Window().resize(1366, 768);
    drivers::Settle();
    drivers::Grab(mdiORVA::Window(), u"sales-hr"_s);
}

}  // namespace
