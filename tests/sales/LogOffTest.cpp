#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Keys;

namespace {

const auto Report = u"Do you want to make End Report?"_s;
const auto Close = u"Close the program?"_s;

class LogOffTest : public drivers::TillTest {};

TEST_F(LogOffTest, NoToBothLeavesEverythingAsItWas) {
    LogIn();
    Keys(u"100{Enter}");
    Boxes boxes;
    boxes.Expect(Report, QMessageBox::No).Titled(u"End Report? YES or NO"_s).WithIcon(QMessageBox::Question);
    boxes.Expect(Close, QMessageBox::No).Titled(u"END OF WORK"_s).WithIcon(QMessageBox::Question);
    Keys(u"{F12}");
    Keys(u"300{Enter}");
    EXPECT_EQ(drivers::List(Sales(), u"lv1").size(), 2u) << "the scanner goes on behind the two boxes";
    EXPECT_FALSE(forms::ProgramIsEnding());
}

TEST_F(LogOffTest, TheEndCompletesTheLoginRow) {
    Setting(u"PonudiZakljucak"_s, false);
    LogIn();
    Boxes boxes;
    boxes.Expect(Close, QMessageBox::Yes);
    Keys(u"{F12}");
    EXPECT_TRUE(forms::ProgramIsEnding());
    EXPECT_EQ(forms::ProgramExitCode(), 0);
    EXPECT_EQ(Rows(u"SELECT LogInNo FROM Login WHERE DateOut = #11-24-2026# AND LogOut IS NOT NULL"_s),
              QStringList{u"1"_s});
    EXPECT_EQ(Rows(u"SELECT Closed FROM Sales"_s), QStringList{u"False"_s});
}

TEST_F(LogOffTest, TheEndReportClosesEveryPeriodAndTheNextBegins) {
    LogIn();
    Keys(u"100{Enter}{F5}200{Enter}");
    Run(u"UPDATE Sales SET Grupni = 4"_s);
    {
        Boxes boxes;
        boxes.Expect(Report, QMessageBox::Yes);
        boxes.Expect(u"End Report is done?"_s)
            .WithIcon(QMessageBox::Warning)
            .Titled(u"End Report 11/24/2026 10:42:07 AM"_s);
        boxes.Expect(Close, QMessageBox::No);
        Keys(u"{F12}");
    }
    drivers::Settle();
    EXPECT_EQ(Rows(u"SELECT SalesID, Closed, Payed, Grupni, TotalSales FROM Sales"_s),
              (QStringList{u"1|True|True|5|1.5"_s, u"2|False|False||0"_s}));
    EXPECT_TRUE(drivers::List(Sales(), u"lv1").empty());
    EXPECT_EQ(mdiORVA::Window().RunningTotal(), u"0.00");
    EXPECT_EQ(Shown(u"txtInvoiceNumber"), u"2");
    Keys(u"300{Enter}{F5}");
    EXPECT_EQ(Rows(u"SELECT SalesID FROM Invoices"_s), (QStringList{u"1"_s, u"2"_s}));
}

TEST_F(LogOffTest, TheChooserGoesWithTheScreenThatItChoosesFor) {
    LogIn();
    Keys(u"{F2}");
    ASSERT_TRUE(forms::FindForm(u"frmArtikli"));
    mdiORVA::Window().activateWindow();
    Boxes boxes;
    boxes.Expect(Report, QMessageBox::Yes);
    boxes.Expect(u"End Report is done?"_s);
    boxes.Expect(Close, QMessageBox::No);
    drivers::Click(drivers::Get<QWidget>(Sales(), u"cmdLogOff"));
    EXPECT_FALSE(forms::FindForm(u"frmArtikli"));
    Keys(u"100{Enter}");
    EXPECT_EQ(drivers::List(Sales(), u"lv1").size(), 1u);
}

TEST_F(LogOffTest, AnEndReportWithoutOpenPeriodChangesNothing) {
    LogIn();
    Run(u"UPDATE Sales SET Closed = True, Grupni = 32767"_s);
    {
        Boxes boxes;
        boxes.Expect(Report, QMessageBox::Yes);
        boxes.Expect(u"End Report is done?"_s);
        boxes.Expect(Close, QMessageBox::Yes);
        Keys(u"{F12}");
    }
    EXPECT_EQ(Rows(u"SELECT Closed, Grupni FROM Sales"_s), QStringList{u"True|32767"_s});
}

TEST_F(LogOffTest, AClearedLogDoesNotKeepTheProgramFromEnding) {
    Setting(u"PonudiZakljucak"_s, false);
    LogIn();
    Run(u"DELETE * FROM Login"_s);
    Boxes boxes;
    boxes.Expect(Close, QMessageBox::Yes);
    boxes.ExpectBeginning(u"3021"_s);
    Keys(u"{F12}");
    EXPECT_TRUE(forms::ProgramIsEnding());
    EXPECT_EQ(forms::ProgramExitCode(), 1);
}

TEST_F(LogOffTest, AFailedEndReportLeavesAScreenToWorkOn) {
    LogIn();
    Run(u"UPDATE Sales SET Grupni = 32767"_s);
    Keys(u"200{Enter}1{Enter}");
    Boxes boxes;
    boxes.Expect(Report, QMessageBox::Yes);
    boxes.ExpectBeginning(u"6"_s);
    Keys(u"{F12}");
    EXPECT_TRUE(drivers::List(Sales(), u"lv1").empty()) << "the screen went before the periods were closed";
    Keys(u"100{Enter}{F5}");
    EXPECT_EQ(Rows(u"SELECT InvoiceID FROM Invoices"_s), QStringList{u"1"_s});
}

}  // namespace
