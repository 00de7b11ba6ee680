#include "forms/Controls.h"
#include "reports/RegisterFixture.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Keys;

namespace {

const auto Question = u"Do you want to make End Report?\n "_s;
const auto Done = u"End Report is done.\n "_s;
const auto Periods = u"SELECT SalesID, DateStoped, TimeStoped, Closed, Payed, Grupni FROM Sales ORDER BY SalesID"_s;

const QStringList Before{u"5|11/21/2026|9:05:09 PM|True|True|3"_s, u"6|11/21/2026|9:05:09 PM|True|True|3"_s,
                         u"7|11/23/2026|8:11:00 PM|False|False|"_s, u"8|11/24/2026|10:00:00 AM|False|False|"_s,
                         u"9|||False|False|"_s};
const QStringList After{Before[0], Before[1], u"7|11/24/2026|10:42:07 AM|True|True|4"_s,
                        u"8|11/24/2026|10:42:07 AM|True|True|4"_s, u"9|11/24/2026|10:42:07 AM|True|True|4"_s};

class EndReportTest : public RegisterFixture {
protected:
    static void MakeEndReport(const forms::Form& form) {
        Boxes boxes;
        boxes.Expect(Question, QMessageBox::Yes).Titled(u"Do you want to make End Report?"_s);
        boxes.Expect(Done).WithIcon(QMessageBox::Warning).Titled(u"End Report 11/24/2026 10:42:07 AM"_s);
        drivers::Click(drivers::Get<QWidget>(form, u"cmdZakljuci"));
    }
};

TEST_F(EndReportTest, NoChangesNothing) {
    auto& form = ShowState();
    Boxes boxes;
    boxes.Expect(Question, QMessageBox::No).WithIcon(QMessageBox::Question);
    drivers::Click(drivers::Get<QWidget>(form, u"cmdZakljuci"));
    EXPECT_EQ(Rows(Periods), Before);
    EXPECT_EQ(Box(form, u"lblTipPregleda"), u"1");
    Keys(u"{Esc}");
    EXPECT_FALSE(forms::ProgramIsEnding());
}

TEST_F(EndReportTest, ClosesEveryPeriodOfEveryRegisterAndShowsTheReport) {
    auto& form = ShowState();
    const QStringList registers = Shown(form);
    Keys(u"4");
    MakeEndReport(form);
    EXPECT_EQ(Rows(Periods), After);
    EXPECT_EQ(form.windowTitle(), u"End Report");
    EXPECT_EQ(Box(form, u"lblNazivPregleda"), u"End Report No:");
    EXPECT_EQ(Box(form, u"lblZakljucakBr"), u"4");
    EXPECT_EQ(Box(form, u"lblDatumZakljucka"), u"11/24/2026");
    EXPECT_EQ(Box(form, u"lblVrijemeZakljucka"), u"10:42:07 AM");
    EXPECT_FALSE(drivers::Get<QWidget>(form, u"cmdZakljuci")->isEnabled());
    EXPECT_EQ(Box(form, u"lblTab"), u"CASH REGISTERS");
    EXPECT_EQ(Shown(form), registers);
    Keys(u"{F6}");
    EXPECT_EQ(Shown(form), registers);
    Keys(u"3");
    EXPECT_EQ(Shown(form).size(), 3);
    drivers::Grab(form, u"frmTrenutnoStanjeKasa-EndReport"_s);
}

TEST_F(EndReportTest, EveryWayOutEndsTheProgramAfterwards) {
    for (const auto& key : {u"{Esc}"_s, u"{F12}"_s, u"close"_s}) {
        Run(u"UPDATE Sales SET Closed = False WHERE SalesID = '9'"_s);
        auto& form = ShowState();
        MakeEndReport(form);
        EXPECT_FALSE(forms::ProgramIsEnding());
        if (key == u"close")
            form.close();
        else
            Keys(key);
        EXPECT_TRUE(forms::ProgramIsEnding()) << key.toStdString();
        EXPECT_EQ(forms::ProgramExitCode(), 0);
        forms::DropLoadedForms();
        forms::ResetProgramEnd();
    }
}

TEST_F(EndReportTest, WithoutAnOpenPeriodItNumbersNothing) {
    Run(u"UPDATE Sales SET Closed = True"_s);
    const QStringList before = Rows(Periods);
    auto& form = ShowState();
    MakeEndReport(form);
    EXPECT_EQ(Box(form, u"lblZakljucakBr"), u"4");
    EXPECT_EQ(Box(form, u"txtTotalAmount"), u"0.00");
    EXPECT_EQ(Rows(Periods), before);
}

TEST_F(EndReportTest, TheFirstOneHasTheNumberOne) {
    Run(u"UPDATE Sales SET Grupni = NULL"_s);
    auto& form = ShowState();
    MakeEndReport(form);
    EXPECT_EQ(Box(form, u"lblZakljucakBr"), u"1");
    EXPECT_EQ(Shown(form).size(), 3);
}

TEST_F(EndReportTest, AReportThatAnotherRegisterMadeMeanwhileMerges) {
    auto& form = ShowState();
    Run(u"UPDATE Sales SET Closed = True, Payed = True, Grupni = 4 WHERE SalesID = '7'"_s);
    MakeEndReport(form);
    EXPECT_EQ(Rows(u"SELECT SalesID, TimeStoped FROM Sales WHERE Grupni = 4 ORDER BY SalesID"_s),
              (QStringList{u"7|8:11:00 PM"_s, u"8|10:42:07 AM"_s, u"9|10:42:07 AM"_s}));
    EXPECT_EQ(Shown(form).size(), 3);
}

TEST_F(EndReportTest, ANumberBeyondSixteenBitsClosesNothing) {
    Run(u"UPDATE Sales SET Grupni = 32767 WHERE Grupni = 3"_s);
    auto& form = ShowState();
    Boxes boxes;
    boxes.Expect(Question, QMessageBox::Yes);
    boxes.ExpectBeginning(u"6"_s);
    drivers::Click(drivers::Get<QWidget>(form, u"cmdZakljuci"));
    EXPECT_EQ(Rows(u"SELECT SalesID FROM Sales WHERE Closed = False"_s).size(), 3);
    Keys(u"{Esc}");
    EXPECT_TRUE(forms::ProgramIsEnding()) << "the sales screen is off already";
}

TEST_F(EndReportTest, TakesTheSalesScreenOffThisRegister) {
    LogIn();
    Keys(u"100{Enter}");
    mdiORVA::Window().SetEntry(u"mnuTrenutnoKasa"_s, [] {
        frmTrenutnoStanjeKasa form;
        forms::SetText(forms::Control(&form, u"lblTipPregleda"), u"1"_s);
        form.ShowModal();
    });
    Boxes boxes;
    boxes.ExpectForm(u"frmTrenutnoStanjeKasa"_s, [](QWidget& form) {
        MakeEndReport(static_cast<forms::Form&>(form));
        EXPECT_FALSE(forms::FindForm(u"frmORVAtouch"));
        Keys(u"{Esc}");
    });
    forms::Run([] { mdiORVA::Window().Choose(u"mnuTrenutnoKasa"_s); }, u"VELTON POS"_s);
    EXPECT_TRUE(forms::ProgramIsEnding());
    EXPECT_TRUE(Rows(u"SELECT SalesID FROM Sales WHERE Closed = False"_s).isEmpty());
    EXPECT_EQ(Rows(u"SELECT DateOut FROM Login"_s), QStringList{{}}) << "the log plays no part";
}

}  // namespace
