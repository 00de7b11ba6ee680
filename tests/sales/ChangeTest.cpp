#include <QApplication>

#include "support/Till.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Keys;

namespace {

class ChangeTest : public drivers::TillTest {
protected:
    ChangeTest() { Setting(u"Kusur"_s, true); }
};

TEST_F(ChangeTest, TellsTheChangeAfterTheInvoiceIsPosted) {
    LogIn();
    Boxes boxes;
    boxes.ExpectForm(u"frmMSGinvoice"_s, [this](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"CHANGE");
        EXPECT_EQ(Box(dialog, u"txtTotal"), u"4.00");
        EXPECT_EQ(Rows(u"SELECT CashAmount FROM Invoices"_s), QStringList{u"4"_s});
        Keys(u"10x{Enter}");
        EXPECT_EQ(Box(dialog, u"txtCash"), u"10.00");
        EXPECT_EQ(Box(dialog, u"txtChange"), u"6.00");
        EXPECT_EQ(QApplication::focusWidget()->objectName(), u"cmdOK");
        drivers::Grab(dialog, u"frmMSGinvoice"_s);
        Keys(u"{Enter}");
    });
    Keys(u"300{Enter}300{Enter}{F5}");
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"2");
}

TEST_F(ChangeTest, AShortAmountIsToldAndHoldsNobodyBack) {
    values::SetUserLocale(QLocale(u"de_DE"_s));
    LogIn();
    Boxes boxes;
    boxes.ExpectForm(u"frmMSGinvoice"_s, [](QWidget& dialog) {
        Keys(u"{Enter}");
        EXPECT_EQ(Box(dialog, u"txtCash"), u"") << "an empty text stays empty";
        Boxes inner;
        inner.Expect(u"The amount is less than the invoice amount."_s)
            .WithIcon(QMessageBox::Information)
            .Titled(u"VELTON POS"_s);
        Keys(u"1.5{Enter}");
        EXPECT_EQ(Box(dialog, u"txtCash"), u"1,50");
        EXPECT_EQ(Box(dialog, u"txtChange"), u"");
        Keys(u"2{Enter}");
        EXPECT_EQ(Box(dialog, u"txtChange"), u"0,00");
        drivers::Click(drivers::Get<QWidget>(dialog, u"cmdOK"));
    });
    Keys(u"300{Enter}{F5}");
}

}  // namespace
