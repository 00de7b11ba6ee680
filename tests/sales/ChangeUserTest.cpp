#include <QComboBox>

#include "core/Session.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Keys;

namespace {

class ChangeUserTest : public drivers::TillTest {};

TEST_F(ChangeUserTest, WithPasswordTheNextCashierTakesOver) {
    LogIn();
    Keys(u"100{Enter}{F7}");
    EXPECT_EQ(Shown(u"txtUserFullName"), u"");
    Boxes boxes;
    boxes.ExpectForm(u"frmChangeUser"_s, [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Login");
        Boxes inner;
        inner.Expect(u"Nonexistent user."_s).WithIcon(QMessageBox::Critical).Titled(u"Login"_s);
        inner.Expect(u"Wrong password."_s).WithIcon(QMessageBox::Critical).Titled(u"Login"_s);
        Keys(u"nobody{Enter}x{Enter}");
        drivers::Type(dialog, u"txtUserName", u"admin{Enter}12345{Enter}");
        drivers::Grab(dialog, u"frmChangeUser"_s);
        drivers::Type(dialog, u"txtPassword", u"1234{Enter}");
    });
    Keys(u"{F6}");
    EXPECT_EQ(Shown(u"cboID"), u"1");
    EXPECT_EQ(TheSession.SessionUserID, u"2") << "the session stays with who logged in";
    Keys(u"{F5}");
    EXPECT_EQ(Rows(u"SELECT CashierID FROM Invoices"_s), QStringList{u"1"_s});
    EXPECT_EQ(Rows(u"SELECT UserID FROM Login"_s), QStringList{u"2"_s});
}

TEST_F(ChangeUserTest, WithoutPasswordANameIsEnough) {
    Setting(u"ChangeUser"_s, u"2"_s);
    LogIn();
    Boxes boxes;
    boxes.ExpectForm(u"frmChangeUserSimple"_s, [](QWidget& dialog) {
        EXPECT_FALSE(dialog.findChild<QWidget*>(u"txtPassword"_s));
        Keys(u"{Down}");
        EXPECT_TRUE(dialog.isVisible()) << "the arrow key opens the list, it chooses nobody";
        Keys(u"{Esc}");
        Keys(u"admin{Enter}");
    });
    drivers::Click(drivers::Get<QWidget>(Sales(), u"txtUserFullName"));
    EXPECT_EQ(Shown(u"cboID"), u"1");
}

TEST_F(ChangeUserTest, OtherwiseNothingHappensAndCancelOnlyCloses) {
    LogIn();
    {
        Boxes boxes;
        boxes.ExpectForm(u"frmChangeUser"_s, [](QWidget&) { Keys(u"admin{Enter}{Esc}"); });
        Keys(u"{F6}");
        EXPECT_EQ(Shown(u"cboID"), u"2");
    }
    Crash();
    Setting(u"ChangeUser"_s, u"0"_s);
    LogIn();
    Keys(u"{F7}{F6}");
    EXPECT_EQ(Shown(u"cboID"), u"");
}

}  // namespace
