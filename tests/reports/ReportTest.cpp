#include <QCalendarWidget>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <ctime>
#include <thread>

#include "core/Settings.h"
#include "core/dbModule.h"
#include "receipts/TextFiles.h"
#include "reports/RegisterFixture.h"
#include "support/Files.h"
#include "values/DateText.h"
#include "values/Language.h"
#include "values/Locale.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;

namespace {

using ReportTest = RegisterFixture;

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

TEST_F(ReportTest, ADayIsThatDayWhateverTheCalendarDoes) {
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
        forms::Form& form = ShowReport(u"frmRacuni"_s);
        for (const auto choose : {ByKeyboard, ByMouse, ByTyping}) {
            Choose(form, u"01.01.2030"_s);
            choose(form, day);
            const auto rows = drivers::List(form, u"lv1");
            ASSERT_EQ(rows.size(), 1u) << place << ' ' << Box(form, u"lblNaslov").toStdString();
            EXPECT_EQ(rows[0][0], u"91") << Box(form, u"lblNaslov").toStdString();
            EXPECT_TRUE(Box(form, u"lblNaslov").endsWith(day.toString(u"dd.MM.yyyy"_s)));
            EXPECT_TRUE(Get<QWidget>(form, u"lv1")->hasFocus());
        }
        form.Unload();
        Run(u"DELETE * FROM Invoices WHERE Val(OrNo) >= 90"_s);
    }
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
}

TEST_F(ReportTest, ThePagePrinterGetsTheSameLines) {
    if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
    if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty()) GTEST_SKIP() << "pdftotext is missing";
    Choose(ShowReport(u"frmSales"_s), u"01.11.2026-30.11.2026"_s);
    boxes_.ExpectFile(Path(u"saved.txt"_s));
    Keys(u"{F4}");
    const QString saved = QString::fromLatin1(File(u"saved.txt"_s));
    TheSettings.PrinterZaIzvjestaj = u"3"_s;
    TheSettings.VelFont = u"12"_s;
    Keys(u"{F5}");
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, Path(u"printouts/20261124-104207-1.pdf"_s), u"-"_s});
    reader.waitForFinished();
    EXPECT_EQ(QString::fromUtf8(reader.readAllStandardOutput()).simplified(), saved.simplified());
    EXPECT_FALSE(QFile::exists(Path(u"lpt1.prn"_s)));
}

TEST_F(ReportTest, KeepToTheirPaperInEveryLanguage) {
    drivers::AddRows(MainStore(), u"Login"_s, {u"LogInNo=1 | Date="_s + values::DateText(QDate(2026, 11, 20))});
    const auto save = [this](const QString& name) {
        forms::Form& form = ShowReport(name);
        if (form.findChild<QCalendarWidget*>(u"mv1"_s)) Choose(form, u"01.11.2026-30.11.2026"_s);
        boxes_.ExpectFile(Path(u"saved.txt"_s));
        Keys(name == u"frmRacuni" ? u"{F5}" : u"{F4}");
        return File(u"saved.txt"_s).split('\n');
    };
    for (const QString& name : ReportNames()) {
        if (name == u"frmZakljucakPregled1") continue;  // prints what the period of another has
        const QByteArrayList plain = save(name);
        EXPECT_GT(plain.size(), 5) << name.toStdString();
        const qsizetype widest = std::ranges::max(plain, {}, &QByteArray::size).size();
        for (const values::Language& language : values::Languages()) {
            values::UseLanguage(values::Shown::OnPaper, language.code);
            const QByteArrayList lines = save(name);
            values::UseLanguage(values::Shown::OnPaper, {});
            SCOPED_TRACE((name + u' ' + language.code).toStdString());
            EXPECT_TRUE(lines != plain || language.code == u"en");
            ASSERT_EQ(lines.size(), plain.size());
            for (const QByteArray& line : lines) EXPECT_LE(line.size(), widest) << line.constData();
        }
    }
}

TEST_F(ReportTest, ACopyThatDoesNotFitLeavesTheOldFile) {
    drivers::WriteFile(Path(u"long.txt"_s), QByteArray(5000, 'x'));
    drivers::WriteFile(Path(u"old.txt"_s), "old");
    {
        const drivers::NoMoreRoom noMoreRoom(1000);
        EXPECT_THROW(CopyTextFile(Path(u"long.txt"_s), Path(u"old.txt"_s)), values::Error);
    }
    EXPECT_EQ(File(u"old.txt"_s), "old");
}

TEST_F(ReportTest, ALongReportIsLeftByEscOrByItsButton) {
    {
        // Many rows of one number: joined with each other they keep the store busy.
        store::Database::Batch batch(MainStore());
        for (int row = 0; row < 5000; ++row) Sell(u"77"_s, QDate(2026, 12, 1), u"1"_s);
        batch.Commit();
    }
    forms::Form& form = ShowReport(u"frmSalesProducts"_s);
    const auto leaveBy = [&](std::function<void(QPushButton*)> act) {
        Choose(form, u"23.11.2026"_s);
        EXPECT_EQ(Count(form), 3);
        bool acted = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &form, [&] {
            auto* leave = form.findChild<QPushButton*>(u"cmdLeave"_s);
            if (!leave || std::exchange(acted, true)) return;
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F12);
            form.close();
            EXPECT_TRUE(form.isVisible()) << "nothing but leaving is possible";
            drivers::Grab(form, u"report-at-work"_s);
            act(leave);
        });
        timer.start(20);
        Choose(form, u"01.12.2026"_s);
        EXPECT_TRUE(acted);
        EXPECT_EQ(Count(form), 0);
        EXPECT_EQ(Box(form, u"txtTotalAmount"), u"");
        EXPECT_FALSE(form.findChild<QPushButton*>(u"cmdLeave"_s));
        EXPECT_FALSE(QApplication::overrideCursor());
    };
    leaveBy([](QPushButton*) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    leaveBy([](QPushButton* leave) { QTest::mouseClick(leave, Qt::LeftButton); });
    EXPECT_TRUE(form.IsLoaded());
    Choose(form, u"23.11.2026"_s);
    EXPECT_EQ(Count(form), 3);
}

// The other register counts up the first period, then the last one: in no moment is the last one ahead.
TEST_F(ReportTest, AReportReadsOneMomentWhileAnotherRegisterSells) {
    constexpr int periods = 3000;
    {
        store::Database::Batch batch(MainStore());
        drivers::AddRows(MainStore(), u"Sales"_s, QStringList(periods, u"DateGenerated=12/1/2026 | TotalSales=0"_s));
        batch.Commit();
    }
    forms::Form& form = ShowReport(u"frmZakljucakPregled"_s);
    std::jthread register2([this](const std::stop_token& stop) {
        const auto main = OpenMain();
        const store::Burst burst(*main);
        auto sales = main->OpenRecordset(u"SELECT * FROM Sales WHERE DateGenerated = #12-01-2026#"_s);
        for (int amount = 1; !stop.stop_requested(); ++amount) {
            for (const bool isLast : {false, true}) {
                isLast ? sales.MoveLast() : sales.MoveFirst();
                sales.Edit();
                sales[u"TotalSales"] = values::CMoney(QString::number(amount));
                sales.Update();
            }
        }
    });
    double seen = 0;
    for (int reading = 0; reading < 20; ++reading) {
        Choose(form, u"01.12.2026"_s);
        const auto rows = drivers::List(form, u"lv1");
        ASSERT_EQ(rows.size(), size_t{periods});
        const double first = values::CDouble(rows.front()[5]);
        const double last = values::CDouble(rows.back()[5]);
        EXPECT_TRUE(first == last || first == last + 1) << first << ' ' << last;
        EXPECT_EQ(values::CDouble(Box(form, u"txtTotalAmount")), first + last);
        seen = last;
    }
    EXPECT_GT(seen, 0);
}

}  // namespace
