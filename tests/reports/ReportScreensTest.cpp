#include <QPushButton>
#include <QTest>

#include "core/Session.h"
#include "core/dbModule.h"
#include "reports/RegisterFixture.h"
#include "reports/frmActivity.h"
#include "reports/frmPopisRobe.h"
#include "reports/frmRacuni.h"
#include "reports/frmSalesTax.h"
#include "reports/frmStanjeArtikala.h"
#include "reports/frmTaxbyInvoice.h"
#include "reports/frmZakljucakPregled1.h"
#include "support/Office.h"
#include "values/Clock.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Get;
using drivers::Keys;

namespace {

const auto Always = u"01.11.2026-30.11.2026"_s;

class ReportScreensTest : public RegisterFixture {
protected:
    Boxes boxes_;
};

TEST_F(ReportScreensTest, AnEndReportOpensByDoubleClickAndByEnter) {
    forms::Form& form = ShowReport<frmZakljucakPregled1>();
    auto* list = Get<forms::ListView>(form, u"lv1");
    Choose(form, u"21.11.2026"_s);
    EXPECT_EQ(Shown(form), QStringList{u"3|11/21/2026|9:05:09 PM|25.40"_s});
    list->Select(-1);
    drivers::DoubleClickRow(list, -1);
    Keys(u"{Enter}");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"cmdPrintPregledListe");

    const auto look = [](QWidget& state) {
        EXPECT_EQ(Box(state, u"lblTipPregleda"), u"2");
        EXPECT_EQ(Box(state, u"lblZakljucakBr"), u"3");
        EXPECT_EQ(Box(state, u"lblDatumZakljucka"), u"11/21/2026");
        EXPECT_EQ(Box(state, u"lblVrijemeZakljucka"), u"9:05:09 PM");
        EXPECT_EQ(drivers::List(state, u"lv1").size(), 2u);
        Keys(u"{Esc}");
    };
    boxes_.ExpectForm(u"frmTrenutnoStanjeKasa"_s, look);
    drivers::DoubleClickRow(list, 0);
    boxes_.ExpectForm(u"frmTrenutnoStanjeKasa"_s, look);
    drivers::DoubleClickRow(list, -1);
    boxes_.ExpectForm(u"frmTrenutnoStanjeKasa"_s, look);
    Keys(u"{Enter}");
    EXPECT_EQ(boxes_.Left(), 0);
    EXPECT_FALSE(forms::ProgramIsEnding());
    EXPECT_TRUE(form.IsLoaded());
}

TEST_F(ReportScreensTest, ALineWhoseTaxWasDeletedFallsOutOfTheRatesAlone) {
    Run(u"DELETE * FROM Tax WHERE TaxID = 'N'"_s);
    forms::Form& rates = ShowReport<frmSalesTax>();
    Choose(rates, u"23.11.2026"_s);
    EXPECT_EQ(Shown(rates), QStringList{u"P|PDV 17 %|17.00|11/23/2026|13.55|2.30|15.85"_s});
    EXPECT_EQ(Box(rates, u"txtTotalAmount"), u"15.85");
    rates.Unload();
    forms::Form& heads = ShowReport<frmTaxbyInvoice>();
    Choose(heads, u"23.11.2026"_s);
    EXPECT_EQ(Box(heads, u"txtTotalAmount"), u"17.85");
}

TEST_F(ReportScreensTest, ARefreshShowsTheSameRowsAsTheyAreNowUnderTheOldTotal) {
    const forms::Form& form = ShowReport<frmStanjeArtikala>();
    EXPECT_EQ(Box(form, u"lblNaslov"), u"11/24/2026  10:42:07 AM");
    EXPECT_EQ(Box(form, u"txtTotalAmount"), u"315.50");
    Run(u"UPDATE Products SET Qty = -2 WHERE ProdCode = '100'"_s);
    Run(u"UPDATE Products SET UnitPrice = 3 WHERE ProdCode = '300'"_s);
    Run(u"UPDATE Products SET ProdDescription = 'Jabuke' WHERE ProdCode = '200'"_s);
    Run(u"DELETE * FROM Products WHERE ProdCode = '400'"_s);
    auto products = MainStore().OpenRecordset(u"SELECT * FROM Products"_s);
    products.AddNew();
    products[u"ProdCode"] = u"500"_s;
    products.Update();
    values::SetClock([] { return QDateTime(QDate(2026, 11, 25), QTime(0, 0, 1)); });
    Keys(u"{F6}");
    EXPECT_EQ(Shown(form),
              QStringList({u"100|Cola|pcs|-2|-3.00"_s, u"200|Jabuke|kg|50|195.00"_s, u"300|Novine|pcs|10|30.00"_s,
                           u"3850104003217|Mlijeko 2,8 % 1 l|pcs|30|70.50"_s}));
    EXPECT_EQ(Box(form, u"lblNaslov"), u"11/25/2026  12:00:01 AM");
    EXPECT_EQ(Box(form, u"txtTotalAmount"), u"315.50");
}

TEST_F(ReportScreensTest, TheGoodsTakeOneTaxOutOfTheirTotal) {
    const struct {
        QString quantity;
        QString with;
        QString without;
        QString tax;
    } cases[] = {{u"117"_s, u"117.00"_s, u"100.00"_s, u"17"_s},
                 {u"1"_s, u"1.00"_s, u"0.85"_s, u"0.15"_s},
                 {u"-117"_s, u"-117.00"_s, u"-100.00"_s, u"-17"_s}};
    Run(u"DELETE * FROM Products WHERE ProdCode <> '300'"_s);
    for (const auto& [quantity, with, without, tax] : cases) {
        Run(u"UPDATE Products SET UnitPrice = 1, Qty = %1"_s.arg(quantity));
        forms::Form& form = ShowReport<frmPopisRobe>();
        EXPECT_EQ(Box(form, u"txtTotalAmount"), with);
        EXPECT_EQ(Box(form, u"txtTotalAmount1"), without);
        EXPECT_EQ(Box(form, u"txtTotalAmount2"), tax);
        Choose(form, Always);
        Choose(form, u"20.11.2026"_s);
        EXPECT_EQ(Shown(form).size(), 1) << "the days choose nothing here";
        EXPECT_EQ(Box(form, u"lblNaslov"), u"");
        boxes_.ExpectForm(u"frmRacunPregled"_s, [&, total = with](QWidget& preview) {
            EXPECT_EQ(Box(preview, u"lblNazivFajla"), u"\\Report.txt");
            EXPECT_TRUE(Box(preview, u"rtBox").contains(u"TOTAL with Tax: "_s + total + u'\n'));
            Keys(u"{Esc}");
        });
        Keys(u"{F5}");
        boxes_.ExpectFile({}).Titled(u"Sacuvaj kao"_s);
        Keys(u"{F4}");
        form.Unload();
    }
}

// --- On a till where somebody sells and is logged in.

class ReportsAtTheTillTest : public drivers::OfficeTest {
protected:
    void SellTwo() { Keys(u"100{Enter}{F5}300{Enter}{F5}"); }
    // The preview of the invoices comes up with so many of them.
    void ExpectInvoices(int count) {
        boxes_.ExpectForm(u"frmRacunPregled"_s, [count](QWidget& preview) {
            EXPECT_EQ(preview.windowTitle(), u"Review Invoice");
            EXPECT_EQ(Box(preview, u"rtBox").count(u"TOTAL..."_s), count);
            Keys(u"{Esc}");
        });
    }
    static void AddLogin(const QString& number, QDate day) {
        auto login = MainStore().OpenRecordset(u"SELECT * FROM Login"_s);
        login.AddNew();
        login[u"LogInNo"] = number;
        login[u"Date"] = day;
        login.Update();
    }
};

TEST_F(ReportsAtTheTillTest, F10ListsTheInvoicesAndReprintsOneOrAll) {
    LogIn();
    SellTwo();
    boxes_.ExpectForm(u"frmRacuni"_s, [this](QWidget& widget) {
        auto& form = static_cast<forms::Form&>(widget);
        Keys(u"{F6}");  // nothing is selected
        ExpectInvoices(2);
        Keys(u"{F4}");  // no days were chosen: all of them
        Choose(form, u"23.11.2026"_s);
        boxes_.Expect(u"Currently there is no single invoice"_s).WithIcon(QMessageBox::Information);
        Keys(u"{F4}{F6}");
        Choose(form, u"24.11.2026-24.11.2026"_s);
        EXPECT_EQ(drivers::List(form, u"lv1").size(), 2u);
        ExpectInvoices(2);
        Keys(u"{F4}");
        Keys(u"{Down}{Down}");
        ExpectInvoices(1);
        Keys(u"{F6}");
        EXPECT_TRUE(File(u"tempracun.txt"_s).contains("Novine"));
        EXPECT_FALSE(forms::FindForm(u"frmRacPRG"));
        QFile::remove(Path(u"lpt1.prn"_s));
        boxes_.ExpectFile(Path(u"saved.txt"_s));
        Keys(u"{F5}");
        drivers::Click(Get<QWidget>(form, u"cmdPrint"));
        EXPECT_TRUE(File(u"saved.txt"_s).startsWith("Invoices \r\nfrom 24.11.2026 to 24.11.2026\r\n"));
        EXPECT_EQ(File(u"lpt1.prn"_s), File(u"saved.txt"_s) + "\r\n\r\n\r\n");
        Keys(u"{F12}");
    });
    Keys(u"{F10}");
    EXPECT_EQ(boxes_.Left(), 0);
}

TEST_F(ReportsAtTheTillTest, TheLogIsClearedButForThisLogin) {
    LogIn(u"admin"_s);
    const QDate today = values::Today();
    for (const QString& number : {u"7"_s, u"8"_s}) AddLogin(number, today.addYears(-1));
    const QString mine = TheSession.LoginNumber;
    Use<frmActivity>([&](frmActivity& form) {
        EXPECT_EQ(Get<QWidget>(form, u"cmdBrisi")->toolTip(), u"Delete all list");
        Keys(u"{F6}");  // an empty list
        EXPECT_EQ(Rows(u"SELECT LogInNo FROM Login"_s).size(), 3);
        Choose(form, u"24.11.2026"_s);
        EXPECT_EQ(drivers::List(form, u"lv1").size(), 1u);
        Keys(u"{F6}");
        EXPECT_TRUE(drivers::List(form, u"lv1").empty());
        EXPECT_EQ(Rows(u"SELECT LogInNo FROM Login"_s), QStringList{u"0"_s});
        EXPECT_EQ(TheSession.LoginNumber, u"0");
        AddLogin(u"9"_s, today);
        Keys(u"{F6}");
        EXPECT_EQ(Rows(u"SELECT LogInNo FROM Login"_s).size(), 2);
        Choose(form, u"24.11.2026"_s);
        Keys(u"{F6}");
        EXPECT_EQ(Rows(u"SELECT LogInNo FROM Login"_s), QStringList{u"0"_s});
    });
    Crash();
    LogIn(u"admin"_s);
    EXPECT_EQ(TheSession.LoginNumber, u"1");
}

TEST_F(ReportsAtTheTillTest, AStepOfTheClearingThatFailsIsToldAndTheNextOneDone) {
    LogIn(u"admin"_s);
    Use<frmActivity>([&](frmActivity& form) {
        Choose(form, u"24.11.2026"_s);
        Run(u"DELETE * FROM Login"_s);  // another register clears the log
        for (const QString& number : {u"3021"_s, u"3020"_s, u"3020"_s})
            boxes_.ExpectBeginning(number)
                .Titled(u"Business hours of cash register"_s)
                .WithIcon(QMessageBox::Information);
        Keys(u"{F6}");
        EXPECT_EQ(boxes_.Left(), 0);
        EXPECT_EQ(TheSession.LoginNumber, u"0");
        EXPECT_TRUE(drivers::List(form, u"lv1").empty());
    });
}

}  // namespace
