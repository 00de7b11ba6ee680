#include <QToolBar>
#include <QToolButton>

#include "core/Session.h"
#include "masterdata/people/frmChangePassword.h"
#include "support/Office.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Keys;

namespace {

class PasswordTest : public drivers::OfficeTest {
protected:
    PasswordTest() { LogIn(u"kasir"_s); }

    QStringList Passwords() const { return Rows(u"SELECT [Password] FROM Users"_s); }
    static void ClickTool(QWidget& form, const QString& key) {
        auto* bar = drivers::Get<QToolBar>(form, u"Tlbr1");
        drivers::Click(bar->widgetForAction(drivers::Get<QAction>(form, key)));
    }
};

TEST_F(PasswordTest, WhoIsLoggedInTakesAnother) {
    Use<frmChangePassword>([this](frmChangePassword& screen) {
        EXPECT_EQ(Box(screen, u"txtUserName"), u"kasir");
        EXPECT_EQ(Box(screen, u"txtUserID"), u"2");
        Keys(u"Nova{Enter}Nova");
        drivers::Grab(screen, u"frmChangePassword"_s);
        boxes_.Expect(u"Password changed."_s).Titled(u"Izmjena lozinke"_s).WithIcon(QMessageBox::Information);
        Keys(u"{F5}");
        EXPECT_FALSE(screen.IsLoaded());
    });
    EXPECT_EQ(Passwords(), (QStringList{u"1234"_s, u"Nova"_s}));
}

TEST_F(PasswordTest, AnEmptyOneAndTwoDifferentOnesAreRefused) {
    Use<frmChangePassword>([this](frmChangePassword& screen) {
        boxes_.Expect(u"Fill in all required fields."_s);
        ClickTool(screen, u"save"_s);
        boxes_.Expect(u"Different passwords!"_s).Titled(u"Different passwords"_s).WithIcon(QMessageBox::Warning);
        Keys(u"Nova{Enter}nova{F5}");
        EXPECT_EQ(Box(screen, u"txtPassword") + Box(screen, u"txtReTypePassword"), u"");
        boxes_.Expect(u"Fill in all required fields."_s);
        Keys(u"{F5}{Esc}");
        EXPECT_FALSE(screen.IsLoaded());
    });
    EXPECT_EQ(Passwords(), (QStringList{u"1234"_s, u"1234"_s}));
}

TEST_F(PasswordTest, TheToolBarHelpsAndCloses) {
    Use<frmChangePassword>([this](frmChangePassword& screen) {
        for (const auto& key : {u"save"_s, u"help"_s, u"close"_s})
            EXPECT_FALSE(drivers::Get<QAction>(screen, key)->icon().isNull()) << key.toStdString();
        drivers::ExpectHelp(boxes_, u"\\Lozinka.rtf"_s);
        Keys(u"{F1}");
        drivers::ExpectHelp(boxes_, u"\\Lozinka.rtf"_s);
        ClickTool(screen, u"help"_s);
        ClickTool(screen, u"close"_s);
        EXPECT_FALSE(screen.IsLoaded());
    });
}

// A user whose number was changed meanwhile is not found, and nothing opens.
TEST_F(PasswordTest, AUserWhoIsGoneIsToldOf) {
    Run(u"UPDATE Users SET UserID = '8' WHERE UserID = '2'"_s);
    boxes_.ExpectBeginning(u"3021"_s);
    forms::Run([] { frmChangePassword().ShowModal(); }, u"VELTON POS"_s);
}

}  // namespace
