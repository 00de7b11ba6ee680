#include <QDir>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <thread>

#include <sys/resource.h>

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/Channel.h"
#include "receipts/TextFiles.h"
#include "reports/RegisterFixture.h"
#include "reports/frmPopisRobe.h"
#include "reports/frmSales.h"
#include "reports/frmSalesProducts.h"
#include "reports/frmTaxbyInvoice.h"
#include "reports/frmZakljucakPregled.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Keys;

namespace {

const auto Always = u"01.11.2026-30.11.2026"_s;

// Reports on paper, in files, and at work beside others.
class ReportOutputTest : public RegisterFixture {
protected:
    void PrintOn(const QString& printer) {
        TheSettings.PrinterZaIzvjestaj = printer;
        TheSettings.PraznihLinijaPoslijeRacuna = 2;
    }
    // What F4 saves of the report that is up.
    QByteArray Saved() {
        boxes_.ExpectFile(Path(u"saved.txt"_s)).Titled(u"Save as"_s);
        Keys(u"{F4}");
        return File(u"saved.txt"_s);
    }

    Boxes boxes_;
};

TEST_F(ReportOutputTest, BothPortsGetWhatIsSavedAndBlankLines) {
    ShowReport<frmTaxbyInvoice>();
    Choose(*forms::FindForm(u"frmTaxbyInvoice"), Always);
    const QByteArray saved = Saved();
    EXPECT_TRUE(saved.startsWith("Tax report for period\r\n"));
    for (const QString& printer : {u"1"_s, u"2"_s, u"0"_s}) {
        PrintOn(printer);
        Keys(u"{F5}");
    }
    EXPECT_EQ(File(u"lpt1.prn"_s), saved + "\r\n\r\n");
    EXPECT_EQ(File(u"lpt2.prn"_s), saved + "\r\n\r\n");
    EXPECT_FALSE(QDir(Path(u"printouts"_s)).exists());
}

TEST_F(ReportOutputTest, ThePagePrinterGetsTheSameLines) {
    if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
    if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty()) GTEST_SKIP() << "pdftotext is missing";
    Choose(ShowReport<frmSales>(), Always);
    const QString saved = QString::fromLatin1(Saved());
    PrintOn(u"3"_s);
    TheSettings.VelFont = u"12"_s;
    Keys(u"{F5}");
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, Path(u"printouts/20261124-104207-1.pdf"_s), u"-"_s});
    reader.waitForFinished();
    EXPECT_EQ(QString::fromUtf8(reader.readAllStandardOutput()).simplified(), saved.simplified());
    EXPECT_FALSE(QFile::exists(Path(u"lpt1.prn"_s)));
}

TEST_F(ReportOutputTest, APortThatIsGoneEndsTheProgram) {
    QFile ports(Path(u"ports.ini"_s));
    ASSERT_TRUE(ports.open(QIODevice::WriteOnly));
    ports.write("[ports]\nlpt1=/dev/no-such-printer\n");
    ports.close();
    Choose(ShowReport<frmSales>(), Always);
    PrintOn(u"1"_s);
    boxes_.ExpectBeginning(u"68"_s).WithIcon(QMessageBox::Critical).Titled(u"Sale by Cashier"_s);
    Keys(u"{F5}");
    EXPECT_TRUE(forms::ProgramIsEnding());
    EXPECT_EQ(forms::ProgramExitCode(), 1);
}

TEST_F(ReportOutputTest, AListOfGoodsThatCannotBeWrittenEndsTheProgram) {
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, Path(u"Report.txt"_s)));
    ShowReport<frmPopisRobe>();
    boxes_.ExpectBeginning(u"61"_s).WithIcon(QMessageBox::Critical);
    Keys(u"{F5}");
    EXPECT_EQ(forms::ProgramExitCode(), 1);
}

TEST_F(ReportOutputTest, ACopyThatDoesNotFitLeavesTheOldFile) {
    for (const auto& [name, contents] : {std::pair(u"long.txt"_s, QByteArray(5000, 'x')), {u"old.txt"_s, "old"}}) {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
    }
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{1000, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_THROW(CopyTextFile(Path(u"long.txt"_s), Path(u"old.txt"_s)), values::Error);
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, before);
    EXPECT_EQ(File(u"old.txt"_s), "old");
}

TEST_F(ReportOutputTest, ASaveThatFailsSaysNothingAndLeavesTheOldFile) {
    const auto write = [this](const QString& name) {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("of last year");
    };
    Choose(ShowReport<frmSales>(), Always);
    for (const QString& name : {u"saved.txt"_s, u"a-file"_s}) write(name);
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, Path(u"Report.txt"_s)));
    EXPECT_EQ(Saved(), "of last year") << "a full disk";
    EXPECT_FALSE(output::Channel1().IsOpen());
    ASSERT_TRUE(QFile::remove(Path(u"Report.txt"_s)));
    for (const QString& name : {u"a-file/saved.txt"_s, u"nowhere/saved.txt"_s, u""_s}) {
        boxes_.ExpectFile(name.isEmpty() ? name : Path(name));
        Keys(u"{F4}");
        EXPECT_EQ(File(u"a-file"_s), "of last year");
    }
    EXPECT_EQ(File(u"saved.txt"_s), "of last year");
    EXPECT_TRUE(Saved().startsWith("Sale by Cashier\r\n")) << "an old file is overwritten";
    EXPECT_EQ(File(u"Report.txt"_s), File(u"saved.txt"_s));
}

TEST_F(ReportOutputTest, ALongReportIsLeftByEscOrByItsButton) {
    {
        // Many rows of one number: joined with each other they keep the store busy.
        store::Database::Batch batch(MainStore());
        for (int row = 0; row < 5000; ++row) Sell(u"77"_s, QDate(2026, 12, 1), u"1"_s);
        batch.Commit();
    }
    forms::Form& form = ShowReport<frmSalesProducts>();
    const auto leaveBy = [&](std::function<void(QPushButton*)> act) {
        Choose(form, u"23.11.2026"_s);
        EXPECT_EQ(Shown(form).size(), 3);
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
        EXPECT_TRUE(Shown(form).isEmpty());
        EXPECT_EQ(Box(form, u"txtTotalAmount"), u"");
        EXPECT_FALSE(form.findChild<QPushButton*>(u"cmdLeave"_s));
        EXPECT_FALSE(QApplication::overrideCursor());
    };
    leaveBy([](QPushButton*) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    leaveBy([](QPushButton* leave) { QTest::mouseClick(leave, Qt::LeftButton); });
    EXPECT_TRUE(form.IsLoaded());
    Choose(form, u"23.11.2026"_s);
    EXPECT_EQ(Shown(form).size(), 3);
}

// The other register counts up the first period, then the last one: in no moment is the last one ahead.
TEST_F(ReportOutputTest, AReportReadsOneMomentWhileAnotherRegisterSells) {
    constexpr int periods = 3000;
    {
        store::Database::Batch batch(MainStore());
        auto sales = MainStore().OpenRecordset(u"SELECT * FROM Sales"_s);
        for (int number = 0; number < periods; ++number) {
            sales.AddNew();
            sales[u"DateGenerated"] = QDate(2026, 12, 1);
            sales[u"TotalSales"] = values::CMoney(u"0"_s);
            sales.Update();
        }
        batch.Commit();
    }
    forms::Form& form = ShowReport<frmZakljucakPregled>();
    std::jthread register2([this](const std::stop_token& stop) {
        const auto main = store::Database::Open(Path(u"ORVA.pos"_s), store::MainSchema());
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
