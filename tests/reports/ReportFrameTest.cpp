#include <QCalendarWidget>
#include <QDateEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>
#include <ctime>

#include "core/Settings.h"
#include "reports/RegisterFixture.h"
#include "reports/frmActivity.h"
#include "reports/frmIzvjestajKIF.h"
#include "reports/frmPopisRobe.h"
#include "reports/frmRacuni.h"
#include "reports/frmSales.h"
#include "reports/frmSalesProducts.h"
#include "reports/frmSalesTax.h"
#include "reports/frmStanjeArtikala.h"
#include "reports/frmTaxbyInvoice.h"
#include "reports/frmZakljucakPregled.h"
#include "reports/frmZakljucakPregled1.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Get;
using drivers::Keys;

namespace {

using Show = forms::Form& (*)();

const auto Always = u"01.11.2026-30.11.2026"_s;

class ReportFrameTest : public RegisterFixture {
protected:
    static bool HasFocus(const forms::Form& form, QStringView control) {
        return QApplication::focusWidget() == Get<QWidget>(form, control);
    }

    static void ClickOption(const forms::Form& form, QStringView option) {
        auto* button = Get<QRadioButton>(form, option);
        QTest::mouseClick(button, Qt::LeftButton, {}, {10, button->height() / 2});
        drivers::Settle();
    }

    Boxes boxes_;
};

TEST_F(ReportFrameTest, AnEmptyListIsToldAndNothingIsPrintedOrSaved) {
    TheSettings.PrinterZaIzvjestaj = u"1"_s;
    Run(u"DELETE * FROM Products"_s);
    const auto change = u"List does not contain any item.Change date."_s;
    const struct {
        Show show;
        QStringList keys;
        QString message;
    } cases[] = {{ShowReport<frmSales>, {u"{F5}"_s, u"{F4}"_s}, change},
                 {ShowReport<frmSalesTax>, {u"{F5}"_s, u"{F4}"_s}, change},
                 {ShowReport<frmRacuni>, {u"{F5}"_s}, change},
                 {ShowReport<frmZakljucakPregled1>, {u"{F5}"_s}, change},
                 {ShowReport<frmActivity>, {u"{F5}"_s, u"{F4}"_s}, u"List haven't any item.Change date."_s},
                 {ShowReport<frmStanjeArtikala>, {u"{F5}"_s, u"{F4}"_s}, u"List does not contain any item."_s},
                 {ShowReport<frmPopisRobe>, {u"{F5}"_s, u"{F4}"_s}, change}};
    for (const auto& [show, keys, message] : cases) {
        forms::Form& form = show();
        for (const QString& key : keys) {
            boxes_.Expect(message).Titled(mdiORVA::Window().Caption()).WithIcon(QMessageBox::Information);
            Keys(key);
            EXPECT_EQ(boxes_.Left(), 0) << form.objectName().toStdString() << key.toStdString();
        }
        EXPECT_TRUE(drivers::List(form, u"lv1").empty());
        for (const auto* box : form.findChildren<QLineEdit*>(QRegularExpression(u"^txt"_s)))
            EXPECT_EQ(box->text(), u"") << box->objectName().toStdString();
        Keys(u"{F12}");
        EXPECT_TRUE(forms::LoadedForms().isEmpty());
    }
    EXPECT_FALSE(QFile::exists(Path(u"Report.txt"_s)));
    EXPECT_FALSE(QFile::exists(Path(u"lpt1.prn"_s)));
}

TEST_F(ReportFrameTest, DaysWithoutRowsEmptyTheListAndItsSums) {
    const struct {
        Show show;
        QString sum;
        QString from = u"from "_s;
        QString to = u" to "_s;
    } cases[] = {{ShowReport<frmSales>, u""_s},
                 {ShowReport<frmSalesProducts>, u""_s},
                 {ShowReport<frmSalesTax>, u"0,00"_s},
                 {ShowReport<frmTaxbyInvoice>, u"0,00"_s},
                 {ShowReport<frmIzvjestajKIF>, u"0,00"_s, u"od "_s, u" do "_s},
                 {ShowReport<frmZakljucakPregled>, u""_s},
                 {ShowReport<frmZakljucakPregled1>, u""_s},
                 {ShowReport<frmRacuni>, u""_s}};
    for (const auto& [show, sum, from, to] : cases) {
        forms::Form& form = show();
        SCOPED_TRACE(form.objectName().toStdString());
        const QPair<QString, QString> choices[] = {
            {u"22.11.2026"_s, u"22.11.2026"_s},
            {u"24.11.2026-20.11.2026"_s, from + u"24.11.2026"_s + to + u"20.11.2026"_s}};
        for (const auto& [days, title] : choices) {
            Choose(form, Always);
            EXPECT_EQ(Box(form, u"lblNaslov"), from + u"01.11.2026"_s + to + u"30.11.2026"_s);
            EXPECT_FALSE(Shown(form).isEmpty());
            Choose(form, days);
            EXPECT_TRUE(Shown(form).isEmpty()) << days.toStdString();
            EXPECT_EQ(Box(form, u"lblNaslov"), title);
            EXPECT_TRUE(HasFocus(form, u"lv1"));
            for (const auto* box : form.findChildren<QLineEdit*>(QRegularExpression(u"^txt"_s)))
                EXPECT_EQ(box->text(), sum) << box->objectName().toStdString();
        }
        form.Unload();
    }
}

TEST_F(ReportFrameTest, BeginsOnTheLastWeekAndTheTabKeyWalksAsTheScreenReads) {
    const forms::Form& form = ShowReport<frmSales>();
    EXPECT_EQ(Get<QCalendarWidget>(form, u"mv1")->selectedDate(), QDate(2026, 11, 24));
    EXPECT_EQ(Get<QDateEdit>(form, u"DTPicker1")->date(), QDate(2026, 11, 17));
    EXPECT_EQ(Get<QDateEdit>(form, u"DTPicker2")->date(), QDate(2026, 11, 24));
    QStringList walk;
    while (walk.size() < 10) {
        QWidget* control = QApplication::focusWidget();
        while (control->objectName().startsWith(u"qt_")) control = control->parentWidget();
        // A date has three parts, and the key goes from one to the next.
        if (!walk.endsWith(control->objectName())) walk << control->objectName();
        Keys(u"{Tab}");
    }
    EXPECT_EQ(walk.join(u' '), u"mv1 DTPicker1 DTPicker2 Command1 optDatum lv1 cmdPrint cmdSacuvaj cmdHelp cmdClose");
}

TEST_F(ReportFrameTest, AnOptionActsAtOnceOnAFullListAndLaterOnAnEmptyOne) {
    forms::Form& sales = ShowReport<frmSales>();
    const QStringList byCashier{u"1|admin||4.00"_s, u"12345|||1234567.80"_s, u"2|kasir||37.35"_s};
    Choose(sales, Always);
    EXPECT_EQ(Shown(sales).size(), 4);
    Get<QWidget>(sales, u"optDatum")->setFocus();
    Keys(u"{Down}");
    EXPECT_EQ(Shown(sales), byCashier);
    EXPECT_EQ(Box(sales, u"lblNaslov"), u"from 01.11.2026 to 30.11.2026");
    EXPECT_EQ(Box(sales, u"txtTotalAmount"), u"1234609.15");
    EXPECT_TRUE(HasFocus(sales, u"optStopa"));
    Keys(u"{Up}");
    EXPECT_EQ(Shown(sales).size(), 4);
    Choose(sales, u"22.11.2026"_s);
    ClickOption(sales, u"optStopa");
    EXPECT_TRUE(Shown(sales).isEmpty());
    Choose(sales, u"24.11.2026"_s);
    EXPECT_EQ(Shown(sales), QStringList{byCashier[1]});
    sales.Unload();

    forms::Form& tax = ShowReport<frmSalesTax>();
    Choose(tax, Always);
    ClickOption(tax, u"optStopa");
    EXPECT_EQ(Shown(tax).size(), 2);
    EXPECT_TRUE(HasFocus(tax, u"lv1"));
    tax.Unload();

    forms::Form& book = ShowReport<frmIzvjestajKIF>();
    Choose(book, Always);
    const QStringList rows = Shown(book);
    ClickOption(book, u"optStopa");
    EXPECT_EQ(Shown(book), rows);
    EXPECT_TRUE(Get<QRadioButton>(book, u"optStopa")->isChecked());
}

// A day by the keyboard and by the mouse, and a period that is typed.
void ByKeyboard(const forms::Form& form, QDate day) {
    auto* month = Get<QCalendarWidget>(form, u"mv1");
    month->setSelectedDate(day.addDays(-1));
    month->setFocus();
    Keys(u"12{Right}{Enter}");  // digits mean nothing here
}

void ByMouse(const forms::Form& form, QDate day) {
    auto* month = Get<QCalendarWidget>(form, u"mv1");
    month->setCurrentPage(day.year(), day.month());
    auto* days = month->findChild<QTableView*>(u"qt_calendar_calendarview"_s);
    QModelIndex cell;
    for (int row = 0; row < days->model()->rowCount(); ++row)
        for (int column = 0; column < days->model()->columnCount(); ++column) {
            const QModelIndex index = days->model()->index(row, column);
            if (index.data().toInt() == day.day() && (row > 2) == (day.day() > 15)) cell = index;
        }
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(cell).center());
    drivers::Settle();
}

void ByTyping(const forms::Form& form, QDate day) {
    Get<QWidget>(form, u"DTPicker1")->setFocus(Qt::TabFocusReason);
    const QString typed = day.toString(u"ddMMyyyy"_s);
    Keys(typed + u"{Tab}"_s + typed + u"{Enter}{Enter}"_s);
}

TEST_F(ReportFrameTest, ADayIsThatDayWhateverTheCalendarDoes) {
    const QByteArray zone = qgetenv("TZ");
    const struct {
        const char* zone;
        const char* locale;
        QDate day;
    } cases[] = {{"UTC", "en_US", QDate(2028, 2, 29)},
                 {"Europe/Sarajevo", "hr_HR", QDate(2026, 3, 29)},
                 {"Europe/Sarajevo", "en_US", QDate(2026, 10, 25)},
                 {"America/Sao_Paulo", "hr_HR", QDate(2018, 11, 4)},
                 {"Asia/Beirut", "en_US", QDate(2026, 3, 29)}};
    for (const auto& [place, locale, day] : cases) {
        qputenv("TZ", place);
        tzset();
        values::SetUserLocale(QLocale(QString::fromLatin1(locale)));
        for (int offset = -1; offset <= 1; ++offset)
            Sell(u"9%1"_s.arg(offset + 1), day.addDays(offset), QString::number(offset + 5));
        forms::Form& form = ShowReport<frmRacuni>();
        for (const auto choose : {ByKeyboard, ByMouse, ByTyping}) {
            Choose(form, u"01.01.2030"_s);
            choose(form, day);
            const auto rows = drivers::List(form, u"lv1");
            ASSERT_EQ(rows.size(), 1u) << place << ' ' << Box(form, u"lblNaslov").toStdString();
            EXPECT_EQ(rows[0][0], u"91") << Box(form, u"lblNaslov").toStdString();
            EXPECT_TRUE(Box(form, u"lblNaslov").endsWith(day.toString(u"dd.MM.yyyy"_s)));
            EXPECT_TRUE(HasFocus(form, u"lv1"));
        }
        form.Unload();
        Run(u"DELETE * FROM Invoices WHERE Val(OrNo) >= 90"_s);
    }
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
}

// The store's own sum does not fit, or that of the lines.
TEST_F(ReportFrameTest, AReportThatFailsLeavesNothingOfTheOneBefore) {
    for (const QString& number : {u"91"_s, u"92"_s}) Sell(number, QDate(2026, 12, 1), u"900000000000000"_s);
    for (const Show show : {ShowReport<frmSales>, ShowReport<frmRacuni>}) {
        forms::Form& form = show();
        Choose(form, Always);
        boxes_.ExpectBeginning(u"6"_s);
        Choose(form, u"01.12.2026"_s);
        EXPECT_TRUE(Shown(form).isEmpty());
        EXPECT_EQ(Box(form, u"lblNaslov"), u"");
        EXPECT_EQ(Box(form, u"txtTotalAmount"), u"");
        form.Unload();
    }
}

TEST_F(ReportFrameTest, TheSumIsThatOfTheLinesAsTheyAreShown) {
    for (const QString& number : {u"91"_s, u"92"_s, u"93"_s}) Sell(number, QDate(2026, 12, 1), u"0.005"_s);
    const forms::Form& form = ShowReport<frmSalesProducts>();
    Choose(form, u"01.12.2026"_s);
    EXPECT_EQ(Shown(form), QStringList({u"P91||||0.01"_s, u"P92||||0.01"_s, u"P93||||0.01"_s}));
    EXPECT_EQ(Box(form, u"txtTotalAmount"), u"0.03");
}

}  // namespace
