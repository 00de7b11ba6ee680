#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>

#include "core/Session.h"
#include "core/Settings.h"
#include "support/Till.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Keys;
using drivers::Type;
using values::Value;

namespace {

const auto Refused = u"Wrong password.Login not allowed."_s;

class LoginTest : public drivers::TillTest {};

TEST_F(LoginTest, ComesUpWithUsersClockAndTheNextNumber) {
    ShowLogin();
    const auto* users = drivers::Get<QComboBox>(Login(), u"txtUserName");
    EXPECT_EQ(users->count(), 2);
    EXPECT_EQ(users->itemText(0), u"admin");
    EXPECT_EQ(Box(Login(), u"txtDate"), u"24.11.2026");
    EXPECT_EQ(Box(Login(), u"txtTime"), u"10:42:07");
    EXPECT_EQ(Box(Login(), u"txtLogInNumber"), u"1");
    EXPECT_EQ(Login().windowTitle(), u"VELTON - LOGIN");
    drivers::Grab(Login(), u"frmLogin"_s);
}

TEST_F(LoginTest, TellsTheSameForAnUnknownUserAndAWrongPassword) {
    ShowLogin();
    for (const auto& [user, password] : {std::pair(u"nobody"_s, u"1234"_s), std::pair(u"kasir"_s, u"12345"_s)}) {
        Boxes boxes;
        boxes.Expect(Refused).WithIcon(QMessageBox::Critical).Titled(u"VELTON - LOGIN"_s);
        Type(Login(), u"txtUserName", user);
        Type(Login(), u"txtPassword", password);
        Keys(u"{Enter}");
    }
    EXPECT_EQ(Box(Login(), u"txtPassword"), u"12345") << "the entries stay";
    EXPECT_TRUE(Rows(u"SELECT * FROM Login"_s).isEmpty());
}

TEST_F(LoginTest, ComparesPasswordsExactlyAndNullMatchesNothing) {
    Run(u"UPDATE Users SET [Password] = 'Tajna' WHERE UserName = 'kasir'"_s);
    Run(u"UPDATE Users SET [Password] = Null WHERE UserName = 'admin'"_s);
    ShowLogin();
    for (const auto& [user, password] :
         {std::pair(u"kasir"_s, u"tajna"_s), std::pair(u"admin"_s, u""_s), std::pair(u"kasir"_s, u"Tajn"_s)}) {
        Boxes boxes;
        boxes.Expect(Refused);
        Type(Login(), u"txtUserName", user);
        Type(Login(), u"txtPassword", password);
        Keys(u"{Enter}");
    }
    Type(Login(), u"txtPassword", u"Tajna");
    Keys(u"{Enter}");
    EXPECT_TRUE(forms::FindForm(u"frmORVAtouch"));
}

TEST_F(LoginTest, WritesTheLogRowAndStartsTheSession) {
    LogIn(u"admin"_s);
    EXPECT_EQ(Rows(u"SELECT LogInNo, UserID, AccLevel, Kas, LogOut, DateOut FROM Login WHERE Date = #11-24-2026#"_s),
              QStringList{u"1|1|1|0||"_s});
    EXPECT_EQ(TheSession.LoginNumber, u"1");
    EXPECT_EQ(TheSession.SessionUserID, u"1");
    EXPECT_EQ(TheSettings.TrakaRacunaFile, u"invoices.txt");
    EXPECT_FALSE(forms::FindForm(u"frmLogin"));
    EXPECT_EQ(Shown(u"txtUserFullName"), TheSession.SessionUserName);

    Crash();
    ShowLogin();
    EXPECT_EQ(Box(Login(), u"txtLogInNumber"), u"2")
        << "a crashed session leaves its row, the next takes the next number";
}

TEST_F(LoginTest, StaysWhateverTheUserWaits) {
    ShowLogin();
    auto* pb = drivers::Get<QProgressBar>(Login(), u"pb");
    QTest::qWait(1300);
    EXPECT_EQ(pb->value(), 0);
    EXPECT_TRUE(Login().isVisible());
}

TEST_F(LoginTest, EndsTheProgramOnCancel) {
    ShowLogin();
    drivers::Click(drivers::Get<QWidget>(Login(), u"cmdCancel"));
    EXPECT_TRUE(forms::ProgramIsEnding());
    EXPECT_EQ(forms::ProgramExitCode(), 0);
}

TEST_F(LoginTest, RefusesEveryOtherWayToClose) {
    ShowLogin();
    EXPECT_FALSE(Login().close());
    EXPECT_TRUE(Login().isVisible());
}

TEST_F(LoginTest, ReportsAnApostropheInTheNameAndGoesOn) {
    ShowLogin();
    {
        Type(Login(), u"txtUserName", u"O'Hara");
        Type(Login(), u"txtPassword", u"x");
        Boxes boxes;
        boxes.ExpectBeginning(u"3075"_s);
        Keys(u"{Enter}");
    }
    Type(Login(), u"txtUserName", u"kasir");
    Type(Login(), u"txtPassword", u"1234");
    Keys(u"{Enter}");
    EXPECT_TRUE(forms::FindForm(u"frmORVAtouch"));
}

TEST_F(LoginTest, TakesOddTextsAsTexts) {
    ShowLogin();
    for (const QString& odd : {u"ana🙂"_s, u"\u202Eana\u202C"_s, u"šđčćž ŠĐ"_s, u"a\0b"_s, QString(500, u'x')}) {
        Boxes boxes;
        boxes.Expect(Refused);
        drivers::Get<QComboBox>(Login(), u"txtUserName")->setEditText(odd);
        Type(Login(), u"txtPassword", u"1234");
        Keys(u"{Enter}");
    }
}

TEST_F(LoginTest, GuardsOnlyThreeSettingsAgainstNull) {
    Setting(u"MjestoProdaje"_s, Value());
    Setting(u"Kasa"_s, Value());
    Setting(u"ServerName"_s, Value());
    Setting(u"TrakaRacunaFile"_s, u"elsewhere.txt"_s);
    ShowLogin();
    EXPECT_EQ(TheSettings.Kasa, 0);
    EXPECT_EQ(TheSettings.MjestoProdaje, u"");
    EXPECT_EQ(TheSettings.TrakaRacunaFile, u"invoices.txt");
    EXPECT_EQ(TheSettings.Currency, u"KM");
}

TEST_F(LoginTest, StopsReadingAtANullThatIsNotAllowedFor) {
    Setting(u"TipRacuna"_s, Value());
    {
        Boxes boxes;
        boxes.ExpectBeginning(u"94The setting TipRacuna can't be used."_s);
        ShowLogin();
    }
    EXPECT_EQ(TheSettings.Currency, u"KM") << "fields before it are read";
    EXPECT_EQ(TheSettings.Footer, u"") << "fields behind it stay empty";
    EXPECT_TRUE(Login().isVisible());
}

TEST_F(LoginTest, OverflowsItsNumberInTheHandlersWords) {
    Run(u"UPDATE Users SET UserPosition = '' WHERE UserID = '1'"_s);
    {
        auto main = store::Database::Open(Path(u"ORVA.pos"_s), store::MainSchema());
        auto log = main->OpenRecordset(u"SELECT * FROM Login"_s);
        log.AddNew();
        log[u"LogInNo"] = u"32767"_s;
        log.Update();
    }
    {
        Boxes boxes;
        boxes.ExpectBeginning(u"6"_s);
        ShowLogin();
    }
}

TEST_F(LoginTest, TurnsPointAndCommaIntoTheUsersSeparator) {
    values::SetUserLocale(QLocale(u"hr_HR"_s));
    LogIn();
    EXPECT_EQ(TheSettings.DecimalSeparator, u',');
    Keys(u"200{Enter}1.5");
    EXPECT_EQ(Shown(u"txtQuantity"), u"1,5");
    EXPECT_EQ(Shown(u"txtPrice"), u"5,85");
}

}  // namespace
