#include <QApplication>
#include <QTabWidget>
#include <QTest>

#include "core/Session.h"
#include "core/mdiORVA.h"
#include "reports/RegisterFixture.h"
#include "values/Clock.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Keys;

namespace {

struct ListCase {
    const char* name;
    QString review;  // the number of an End Report; empty: what is open
    QString key;
    QString tab;
    QStringList rows;
    QString total;
    QString tax;  // empty: not shown
};

void PrintTo(const ListCase& list, std::ostream* out) {
    *out << list.name;
}

const ListCase ListCases[] = {
    {"OpenRegisters",
     {},
     u"1"_s,
     u"CASH REGISTERS"_s,
     {u"0|11/23/2026|8:01:30 AM| |17.85|"_s, u"2|11/24/2026|7:30:00 AM| |1234567.80|"_s,
      u"13|11/24/2026|7:45:59 PM| |0.00|"_s},
     u"1234585.65"_s,
     {}},
    {"OpenCashiersAndAPeriodWithoutInvoices",
     {},
     u"2"_s,
     u"CASHIERS"_s,
     {u"|||||"_s, u"12345|Magdalena Šimić-Đurđević|||1234567.80|"_s, u"2|Marko Ilić|||17.85|"_s},
     u"1234585.65"_s,
     {}},
    {"OpenInvoicesInTextOrder",
     {},
     u"3"_s,
     u"INVOICES"_s,
     {u"0|10|11/23/2026|12:00:01 PM|3.50|0.51"_s, u"2|1|11/24/2026|7:45:10 AM|1234567.80|179381.48"_s,
      u"0|9|11/23/2026|8:15:00 AM|14.35|1.79"_s},
     u"1234585.65"_s,
     u"179383.78"_s},
    {"OpenProducts",
     {},
     u"4"_s,
     u"PRODUCTS"_s,
     {u"100|Cola|pcs|823045|1234567.50|"_s, u"200|Jabuke crvene|kg|3.375|13.50|"_s, u"300|Novine|pcs|1|2.00|"_s,
      u"301|Kesa|carton|1|0.30|"_s, u"3850104003217|Mlijeko svježe trajno 2,8 % 1 l|pcs|1|2.35|"_s},
     u"1234585.65"_s,
     {}},
    // The running total of period 5 was not written to the end: only the registers' list shows it.
    {"ReportRegisters",
     u"3"_s,
     u"1"_s,
     u"CASH REGISTERS"_s,
     {u"0|11/20/2026|7:58:00 AM| |21.40|"_s, u"1|11/21/2026|1:00:00 PM| |4.00|"_s},
     u"25.40"_s,
     {}},
    {"ReportCashiers", u"3"_s, u"2"_s, u"CASHIERS"_s, {u"1|Ana|||4.00|"_s, u"2|Marko Ilić|||19.50|"_s}, u"23.50"_s, {}},
    {"ReportInvoices",
     u"3"_s,
     u"3"_s,
     u"INVOICES"_s,
     {u"0|4|11/20/2026|9:00:00 AM|19.50|2.83"_s, u"1|5|11/21/2026|1:30:00 PM|4.00|0.00"_s},
     u"23.50"_s,
     u"2.83"_s},
    {"ReportProducts",
     u"3"_s,
     u"4"_s,
     u"PRODUCTS"_s,
     {u"200|Jabuke crvene|kg|5|19.50|"_s, u"300|Novine|pcs|2|4.00|"_s},
     u"23.50"_s,
     {}},
    {"AReportThatClosedNothing", u"8"_s, u"3"_s, u"INVOICES"_s, {}, u"0.00"_s, u"0.00"_s},
};

class RegisterListTest : public RegisterFixture, public testing::WithParamInterface<ListCase> {};

TEST_P(RegisterListTest, ShowsTheRowsAndTheirSums) {
    const ListCase& expected = GetParam();
    auto& form =
        expected.review.isEmpty() ? ShowState() : ShowReview(expected.review, u"11/21/2026"_s, u"9:05:09 PM"_s);
    Keys(expected.key);
    EXPECT_EQ(Shown(form), expected.rows);
    EXPECT_EQ(Box(form, u"lblTab"), expected.tab);
    EXPECT_EQ(Box(form, u"txtTotalAmount"), expected.total);
    EXPECT_EQ(drivers::Get<QWidget>(form, u"txtPDV")->isVisible(), !expected.tax.isEmpty());
    if (!expected.tax.isEmpty()) {
        EXPECT_EQ(Box(form, u"txtPDV"), expected.tax);
    }
    drivers::Grab(form, u"frmTrenutnoStanjeKasa-"_s + QString::fromLatin1(expected.name));
}

INSTANTIATE_TEST_SUITE_P(Lists, RegisterListTest, testing::ValuesIn(ListCases),
                         [](const auto& info) { return std::string(info.param.name); });

class RegisterStateTest : public RegisterFixture {};

TEST_F(RegisterStateTest, TellsWhenTheLastEndReportWas) {
    auto& form = ShowState();
    EXPECT_EQ(form.windowTitle(), u"Currently - End Report");
    EXPECT_EQ(Box(form, u"lblNazivPregleda"), u"Currently");
    EXPECT_EQ(Box(form, u"lblPrethodni"), u"11/21/2026 9:05:09 PM");
    EXPECT_EQ(Box(form, u"lblUpozorenje"), u"Lists shows currently balance from last done End Report");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"lv1");
    EXPECT_FALSE(drivers::Get<QWidget>(form, u"lblZakljucakBr")->isVisible());
    Run(u"UPDATE Sales SET Grupni = NULL"_s);
    Keys(u"{F12}");
    auto& first = ShowState();
    EXPECT_EQ(Box(first, u"lblPrethodni"), u"");
}

TEST_F(RegisterStateTest, AReviewShowsItsReportAndMakesNone) {
    auto& form = ShowReview(u"3"_s, u"11/21/2026"_s, u"9:05:09 PM"_s);
    EXPECT_EQ(form.windowTitle(), u"End Report");
    EXPECT_EQ(Box(form, u"lblNazivPregleda"), u"End Report No:");
    EXPECT_EQ(Box(form, u"lblUpozorenje"), u"Lists show balance for selected End Report.");
    for (const auto name : {u"lblZakljucakBr", u"lblDatumZakljucka", u"lblVrijemeZakljucka"})
        EXPECT_TRUE(drivers::Get<QWidget>(form, name)->isVisible());
    for (const auto name : {u"lblPrethodni", u"lblPrethodniNaslov"})
        EXPECT_FALSE(drivers::Get<QWidget>(form, name)->isVisible());
    EXPECT_FALSE(drivers::Get<QWidget>(form, u"cmdZakljuci")->isEnabled());
    Keys(u"{F6}");
    EXPECT_EQ(Box(form, u"lblVrijemeZakljucka"), u"9:05:09 PM") << "the moment of the report, not of the look at it";
    Keys(u"{Esc}");
    EXPECT_TRUE(forms::LoadedForms().isEmpty());
    EXPECT_FALSE(forms::ProgramIsEnding());
}

TEST_F(RegisterStateTest, KeysOfBothBlocksAndTheMouseChooseTheTab) {
    auto& form = ShowState();
    const auto* tabs = drivers::Get<QTabWidget>(form, u"SSTab1");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_3, Qt::KeypadModifier);
    EXPECT_EQ(tabs->currentWidget()->objectName(), u"3 - INVOICES");
    Keys(u"4");
    EXPECT_EQ(tabs->currentWidget()->objectName(), u"4 - PRODUCTS");
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(1).center());
    EXPECT_EQ(Box(form, u"lblTab"), u"CASHIERS");
    EXPECT_EQ(Shown(form).size(), 3);
}

TEST_F(RegisterStateTest, RefreshingReadsAgainButKeepsTheTax) {
    auto& form = ShowState();
    Keys(u"3");
    Run(u"UPDATE Invoices SET CashAmount = 100, TaxTotal = 17 WHERE InvoiceID = '11'"_s);
    values::SetClock([] { return QDateTime(QDate(2026, 11, 24), QTime(23, 0, 1)); });
    Keys(u"{F6}");
    EXPECT_EQ(Box(form, u"txtTotalAmount"), u"117.85");
    EXPECT_EQ(Box(form, u"txtPDV"), u"179383.78");
    EXPECT_EQ(Box(form, u"lblVrijemeZakljucka"), u"11:00:01 PM");
    Keys(u"1");
    Keys(u"3");
    EXPECT_EQ(Box(form, u"txtPDV"), u"19.30");
}

TEST_F(RegisterStateTest, AFailedQueryIsToldAndTheScreenGoesOn) {
    Boxes boxes;
    boxes.ExpectBeginning(u"3075"_s).Titled(u"End Report"_s);
    auto& form = ShowReview({}, {}, {});
    EXPECT_TRUE(form.isVisible());
    Keys(u"{F12}");
    EXPECT_TRUE(forms::LoadedForms().isEmpty());
}

TEST_F(RegisterStateTest, HelpComesByKey) {
    ShowState();
    Boxes boxes;
    drivers::ExpectHelp(boxes, u"\\helpVELTON.rtf"_s);
    Keys(u"{F1}");
}

}  // namespace
