#include "masterdata/people/frmUsers.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QStyle>

#include "support/Office.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;
using drivers::List;

namespace {

const auto Protected = u"Cashier protected from deletion, but you can modify the data."_s;
const auto Taken = u"User with this UserID or a UserName already exists.Change Username!"_s;
const auto NotFilled = u"Fill in all required fields."_s;
const auto Kasir = u"2|kasir|kasir||1|1234"_s;

class UsersTest : public drivers::OfficeTest {
protected:
    UsersTest() { LogIn(u"admin"_s); }

    QStringList Users() const {
        return Rows(u"SELECT UserID, UserName, UserFullName, UserPosition, AccLevel, [Password] FROM Users"_s);
    }
    static QString Focus() { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : u""_s; }
    void Enter(QStringView key, const QString& twin, std::function<void(QWidget&)> script) {
        boxes_.ExpectForm(twin, std::move(script));
        Keys(key);
    }
};

TEST_F(UsersTest, ListsTheUsersAndDeletesOnlyWhatIsFree) {
    Use<frmUsers>([this](frmUsers& screen) {
        EXPECT_EQ(screen.Caption(), u"User - Cashier");
        EXPECT_EQ(List(screen, u"lv1"),
                  (std::vector<QStringList>{{u"1"_s, u"admin"_s, u"3"_s}, {u"2"_s, u"kasir"_s, u"1"_s}}));
        drivers::Grab(screen, u"frmUsers"_s);
        boxes_.Expect(Protected).Titled(u"User - Cashier"_s).WithIcon(QMessageBox::Information);
        Keys(u"{F6}");
        const auto question = u"User Cashier: kasir\nPassword: ****\nAre you sure you want to delete this user?"_s;
        boxes_.Expect(question, QMessageBox::No);
        Keys(u"{Down}{F6}");
        boxes_.Expect(question, QMessageBox::Yes).Expect(u"User deleted."_s);
        Keys(u"{Del}");
        EXPECT_EQ(List(screen, u"lv1").size(), 1u);
        EXPECT_EQ(Users().size(), 1);
        Run(u"UPDATE Users SET UserID = '''' WHERE UserID = '1'"_s);
        Enter(u"{F5}", u"frmNewUser"_s, [](QWidget&) { Keys(u"{F12}"); });
        boxes_.ExpectBeginning(u"3075"_s);
        Keys(u"{F6}{Esc}");
        EXPECT_FALSE(screen.IsLoaded());
    });
}

TEST_F(UsersTest, ANewUserNeedsNumberNameAndLevelAndThePasswordTwice) {
    Use<frmUsers>([this](frmUsers& screen) {
        Enter(u"{F5}", u"frmNewUser"_s, [this](QWidget& form) {
            EXPECT_EQ(form.windowTitle(), u"New User");
            boxes_.Expect(NotFilled).Titled(u"New User"_s);
            Keys(u"12345{Enter}a name of more than fifteen{Enter}{F5}");
            EXPECT_EQ(Focus(), u"cboAccLevel");
            Keys(u"2{Enter}1234567890123456{Enter}other");
            drivers::Grab(form, u"frmNewUser"_s);
            boxes_.Expect(u"Different passwords!"_s).Titled(u"Different passwords"_s).WithIcon(QMessageBox::Warning);
            Keys(u"{F5}");
            EXPECT_EQ(Box(form, u"txtPassword") + Box(form, u"txtReTypePassword"), u"");
            EXPECT_EQ(Focus(), u"txtPassword");
            boxes_.Expect(u"New user added."_s);
            Keys(u"1234567890123456{Enter}123456789012345{F5}");
        });
        EXPECT_EQ(List(screen, u"lv1").back(), (QStringList{u"123"_s, u"a name of more "_s, u"2"_s}));
        Enter(u"{F5}", u"frmNewUser"_s, [this](QWidget& form) {
            boxes_.Expect(Taken).WithIcon(QMessageBox::NoIcon);
            Keys(u"4{Enter}KASIR{Enter}3{F5}");
            boxes_.Expect(NotFilled);
            Keys(u"{Esc}{F5}");
            EXPECT_EQ(Get<QComboBox>(form, u"cboAccLevel")->currentIndex(), -1);
            Keys(u"{F12}");
        });
    });
    EXPECT_EQ(Users().mid(1), (QStringList{Kasir, u"123|a name of more |a name of more ||2|123456789012345"_s}));
}

TEST_F(UsersTest, AnEditWantsThePasswordConfirmedAndMayChangeTheNumber) {
    Run(u"UPDATE Users SET UserFullName = 'Ana Anić', UserPosition = 'till' WHERE UserID = '2'"_s);
    Use<frmUsers>([this](frmUsers& screen) {
        Enter(u"{Down}{Enter}", u"frmEditUser"_s, [this](QWidget& form) {
            EXPECT_EQ(form.windowTitle(), u"Edit User");
            EXPECT_EQ(Box(form, u"txtName") + Box(form, u"txtPosition"), u"Ana Anićtill");
            EXPECT_EQ(Box(form, u"txtPassword") + Box(form, u"txtReTypePassword"), u"1234");
            EXPECT_EQ(Box(form, u"cboAccLevel"), u"1");
            drivers::Grab(form, u"frmEditUser"_s);
            boxes_.Expect(u"Different passwords!"_s);
            Keys(u"7{Enter}ana{F5}");
            Keys(u"neu{Enter}neu{F5}");
        });
        EXPECT_EQ(List(screen, u"lv1")[1], (QStringList{u"7"_s, u"ana"_s, u"1"_s}));
        EXPECT_EQ(Users()[1], u"7|ana|ana||1|neu");
        // An empty password, and a level that the list does not offer, which has to be chosen anew.
        Run(u"UPDATE Users SET [Password] = Null, AccLevel = '9' WHERE UserID = '1'"_s);
        Enter(u"{F4}", u"frmEditUser"_s, [this](QWidget& form) {
            boxes_.Expect(NotFilled);
            Keys(u"{F5}");
            drivers::Type(form, u"cboAccLevel", u"3");
            boxes_.Expect(Taken).WithIcon(QMessageBox::NoIcon);
            drivers::Type(form, u"txtUserID", u"7{F5}");
            drivers::Type(form, u"txtUserID", u"1{F5}");
        });
        EXPECT_EQ(Rows(u"SELECT UserID, AccLevel, Del FROM Users WHERE [Password] = ''"_s), QStringList{u"1|3|True"_s});
        Enter(u"{F4}", u"frmEditUser"_s, [this](QWidget& form) {
            boxes_.Expect(NotFilled);
            Keys(u"{Esc}{F5}");
            EXPECT_EQ(Box(form, u"txtName"), u"");
            Keys(u"{F12}");
        });
    });
}

// A password from elsewhere is kept whole until it is typed anew, which takes no more than 15 characters.
TEST_F(UsersTest, ALongPasswordCanBeConfirmed) {
    const auto password = u"12345678901234567890"_s;
    Run(u"UPDATE Users SET [Password] = '%1' WHERE UserID = '2'"_s.arg(password));
    Use<frmUsers>([&](frmUsers&) {
        Enter(u"{Down}{F4}", u"frmEditUser"_s, [&](QWidget& form) {
            drivers::Type(form, u"txtReTypePassword", password);
            drivers::Type(form, u"txtUserName", u"ana{F5}");
        });
        EXPECT_EQ(Users()[1], u"2|ana|ana||1|"_s + password);
        Enter(u"{Down}{F4}", u"frmEditUser"_s, [&](QWidget& form) {
            drivers::Type(form, u"txtPassword", u"{End}{Left}{Backspace}x");
            EXPECT_EQ(Box(form, u"txtPassword"), u"1234567890123456780");
            boxes_.Expect(u"Different passwords!"_s);
            Keys(u"{F5}");
            drivers::Type(form, u"txtPassword", password);
            drivers::Type(form, u"txtReTypePassword", password + u"{F5}"_s);
        });
        EXPECT_EQ(Users()[1], u"2|ana|ana||1|"_s + password.left(15));
    });
}

TEST_F(UsersTest, ShowPasswordTakesTheStarsOffBothBoxes) {
    Use<frmUsers>([this](frmUsers&) {
        Enter(u"{F5}", u"frmNewUser"_s, [](QWidget& form) {
            const auto* password = Get<QLineEdit>(form, u"txtPassword");
            const auto* again = Get<QLineEdit>(form, u"txtReTypePassword");
            drivers::Type(form, u"txtPassword", u"ab{Enter}c{Tab}");
            const auto shown = [&] { return password->displayText() + again->displayText(); };
            EXPECT_EQ(shown(), u"***");
            Keys(u"{Space}");
            EXPECT_EQ(shown(), u"abc");
            drivers::Grab(form, u"frmNewUser-unmasked"_s);
            Keys(u"{Space}");
            EXPECT_EQ(shown(), u"***");
            Keys(u"{F12}");
        });
    });
}

}  // namespace
