#include <QComboBox>
#include <QLineEdit>

#include "forms/Keypad.h"
#include "player/Input.h"
#include "support/Till.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Get;

namespace {

class TouchTest : public drivers::TillTest {
protected:
    TouchTest() { Setting(u"Kusur"_s, true); }

    static void Tap(const QWidget& form, QStringView control) { drivers::Click(Get<QWidget>(form, control)); }
    static void TapKeys(QStringView letters, const QString& last = {}) {
        for (const QChar letter : letters) TapKey(letter);
        if (!last.isEmpty()) TapKey(last);
    }
    static void TapKey(const QString& name) {
        if (!forms::ShownKeypad()) FAIL() << "no keypad for " << name.toStdString();
        Tap(*forms::ShownKeypad(), u"key"_s + name);
    }
    static bool IsClearOf(const QWidget& form, QStringView control) {
        const auto* box = Get<QWidget>(form, control);
        return !forms::ShownKeypad()->geometry().intersects({box->mapToGlobal(QPoint()), box->size()});
    }
};

TEST_F(TouchTest, ADayAtTheTillNeedsNoKeyboard) {
    values::SetUserLocale(QLocale(u"de_DE"_s));
    ShowLogin();
    auto* name = Get<QComboBox>(Login(), u"txtUserName");
    drivers::ClickAt(name, {name->width() - 8, name->height() / 2}, Qt::LeftButton);
    drivers::Settle();
    EXPECT_FALSE(forms::ShownKeypad()) << "the arrow is for the list";
    name->hidePopup();
    Tap(Login(), u"txtUserName");
    TapKeys(u"kasir", u"Enter"_s);
    TapKeys(u"1234", u"Enter"_s);
    drivers::Settle();
    EXPECT_EQ(Shown(u"txtUserFullName"), u"kasir");
    EXPECT_FALSE(forms::ShownKeypad()) << "the next screen was not asked for one";

    Tap(Sales(), u"txtProdCode");
    TapKeys(u"200", u"Enter"_s);
    for (const auto* control : {u"txtQuantity", u"txtTotalAmount"}) EXPECT_TRUE(IsClearOf(Sales(), control));
    TapKeys(u"2,5", u"Enter"_s);
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"9,75");
    Boxes boxes;
    boxes.Expect(u"Product with this ID-barcode does not exist."_s);
    TapKeys(u"9", u"Swap"_s);
    TapKeys(u"x", u"Enter"_s);
    EXPECT_EQ(boxes.Left(), 0);
    for (const auto* key : {u"Back", u"Back"}) TapKey(QString::fromUtf16(key));

    boxes.ExpectForm(u"frmMSGinvoice"_s, [](QWidget& dialog) {
        EXPECT_FALSE(forms::ShownKeypad());
        Tap(dialog, u"txtCash");
        QStringList offers;
        for (const auto* key : forms::ShownKeypad()->findChildren<QPushButton*>(QRegularExpression(u"keyOffer."_s)))
            offers << key->text();
        EXPECT_EQ(offers, (QStringList{u"9,75"_s, u"10"_s, u"20"_s, u"50"_s}));
        for (const auto* control : {u"txtCash", u"txtTotal", u"txtChange", u"cmdOK"})
            EXPECT_TRUE(IsClearOf(dialog, control));
        TapKeys(u"7", u"Offer2"_s);
        EXPECT_EQ(Box(dialog, u"txtCash"), u"20");
        TapKey(u"Enter"_s);
        EXPECT_EQ(Box(dialog, u"txtChange"), u"10,25");
        EXPECT_GT(Get<QLineEdit>(dialog, u"txtChange")->font().pixelSize(),
                  Get<QLineEdit>(dialog, u"txtTotal")->font().pixelSize());
        EXPECT_FALSE(forms::ShownKeypad()) << "the button that has the focus now wants none";
        Tap(dialog, u"cmdOK");
    });
    Tap(Sales(), u"cmdNew");
    EXPECT_EQ(Rows(u"SELECT CashAmount FROM Invoices"_s), QStringList{u"9,75"_s});
}

TEST_F(TouchTest, ATillWithoutATouchMonitorHasNoKeypad) {
    Setting(u"POSMonitor"_s, u"1"_s);
    LogIn();
    Tap(Sales(), u"txtProdCode");
    EXPECT_FALSE(forms::ShownKeypad());
}

// To the toolkit two fast touches are a click and a double click.
TEST_F(TouchTest, TwoFastTouchesOfAProductAreTwoPieces) {
    Run(u"UPDATE Products SET Tab = 1 WHERE ProdCode = '100'"_s);
    LogIn(u"kasir"_s);
    auto* button = Get<QWidget>(Sales(), u"Command2_1");
    const QPoint middle = button->rect().center();
    drivers::ClickAt(button, middle, Qt::LeftButton);
    drivers::ClickAgainAt(button, middle);
    drivers::Settle();
    EXPECT_EQ(Shown(u"lblCount"), u"Lines: 1   Pieces: 2");
}

}  // namespace
