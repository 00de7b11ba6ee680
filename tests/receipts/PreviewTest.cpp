#include <QDir>
#include <QElapsedTimer>
#include <QScrollBar>

#include "SampleText.h"
#include "ScreenCase.h"
#include "core/Session.h"
#include "forms/TextView.h"
#include "receipts/frmRacunPregled.h"
#include "receipts/frmTrakaRacuna.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;

namespace {

// A text with a letter of the western page, a bare line end, and a last line without one.
constexpr QByteArrayView report = "Sales of the day\r\n\r\nCaf\xE9\n40 lines";

class PreviewTest : public ReceiptScreenTest {
protected:
    void ShowPreview(const QString& file, std::function<void(QWidget&)> script) {
        boxes_.ExpectForm(u"frmRacunPregled"_s, std::move(script));
        forms::Run([&] { frmRacunPregled::Preview(file); }, u"VELTON POS"_s);
    }
    void ReportsTo(const QString& printer) {
        Setting(u"PrinterZaIzvjestaj"_s, printer);
        LogIn();
        Write(u"Report.txt"_s, report.toByteArray());
    }
};

TEST_F(PreviewTest, ShowsPrintsSavesAndDeletesAReport) {
    ReportsTo(u"1"_s);
    ShowPreview(u"\\Report.txt"_s, [this](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Print preview");
        EXPECT_EQ(Box(form, u"rtBox"), u"Sales of the day\n\nCafé\n40 lines");
        Keys(u"{F5}");
        EXPECT_EQ(File(u"lpt1.prn"_s), "Sales of the day\r\n\r\nCaf\xE9\r\n40 lines\r\n")
            << "no drawer, no cutter, no blank lines";
        EXPECT_EQ(form.windowTitle(), u"Print preview");
        boxes_.ExpectFile(Path(u"mine"_s));
        Keys(u"{F4}");
        EXPECT_EQ(File(u"mine"_s), report);
        boxes_.ExpectFile({});
        Keys(u"{F4}");
        Keys(u"{F6}");
        EXPECT_EQ(Box(form, u"rtBox"), u"");
        EXPECT_FALSE(QFile::exists(Path(u"Report.txt"_s)));
        Keys(u"{F4}{F5}{F6}");  // nothing to do any more
        Keys(u"{Esc}");
    });
    EXPECT_EQ(boxes_.Left(), 0);
}

TEST_F(PreviewTest, PrintsWhereTheReportsGo) {
    const struct {
        QString printer;
        QByteArray port2;
        int pdfs;
    } cases[] = {{u"2"_s, "Sales of the day\r\n\r\nCaf\xE9\r\n40 lines\r\n", 0}, {u"3"_s, "", 1}, {u"0"_s, "", 1}};
    for (const auto& [printer, port2, pdfs] : cases) {
        QFile::remove(Path(u"lpt2.prn"_s));
        ReportsTo(printer);
        ShowPreview(u"\\Report.txt"_s, [](QWidget&) { Keys(u"{F5}{F12}"); });
        EXPECT_EQ(File(u"lpt2.prn"_s), port2) << printer.toStdString();
        EXPECT_EQ(QDir(Path(u"printouts"_s)).entryList({u"*.pdf"_s}).size(), pdfs) << printer.toStdString();
        EXPECT_TRUE(File(u"lpt1.prn"_s).isEmpty());
        Crash();
    }
}

TEST_F(PreviewTest, ANameThatIsMissingShowsNothing) {
    LogIn();
    for (const QString& name : {u""_s, u"\\Report.txt"_s})
        ShowPreview(name, [](QWidget& form) {
            EXPECT_EQ(Box(form, u"rtBox"), u"");
            Keys(u"{F4}{F5}{F6}{F12}");
        });
}

TEST_F(PreviewTest, ASaveThatFailsIsToldAndLeavesEverythingAsItWas) {
    ReportsTo(u"1"_s);
    Write(u"a-file"_s, "mine");
    ShowPreview(u"\\Report.txt"_s, [this](QWidget&) {
        for (const QString& name : {u"nowhere/copy.txt"_s, u"a-file/copy.txt"_s}) {
            boxes_.ExpectFile(Path(name));
            boxes_.ExpectBeginning(u"7"_s);
            Keys(u"{F4}");
        }
        EXPECT_FALSE(forms::ProgramIsEnding());
        boxes_.ExpectFile(Path(u"copy.txt"_s));
        Keys(u"{F4}{F12}");
    });
    EXPECT_EQ(File(u"copy.txt"_s), report);
    EXPECT_EQ(File(u"a-file"_s), "mine");
    EXPECT_EQ(File(u"Report.txt"_s), report);
}

TEST_F(PreviewTest, APortThatIsGoneEndsTheProgram) {
    ReportsTo(u"1"_s);
    LosePort1();
    ShowPreview(u"\\Report.txt"_s, [this](QWidget&) {
        boxes_.ExpectBeginning(u"68"_s).WithIcon(QMessageBox::Critical).Titled(u"Print preview"_s);
        Keys(u"{F5}");
    });
    ExpectEndOfProgram();
}

TEST_F(PreviewTest, TheHelpTextIsNamed) {
    ReportsTo(u"1"_s);
    ShowPreview(u"\\Report.txt"_s, [this](QWidget&) {
        drivers::ExpectHelp(boxes_, u"\\helpVELTON.rtf"_s);
        Keys(u"{F1}{Esc}");
    });
}

// Megabytes of memory that the process had in use at most since it was last asked.
double PeakMemory() {
    QFile status(u"/proc/self/status"_s);
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    double peak = 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:")) peak = line.mid(6).simplified().split(' ').value(0).toDouble() / 1024;
    QFile reset(u"/proc/self/clear_refs"_s);
    if (reset.open(QIODevice::WriteOnly)) reset.write("5");
    return peak;
}

class RibbonTest : public ReceiptScreenTest {
protected:
    RibbonTest() { LogIn(); }
    void ShowRibbon(std::function<void(QWidget&)> script) {
        boxes_.ExpectForm(u"frmTrakaRacuna"_s, std::move(script));
        forms::Run([] { frmTrakaRacuna().ShowModal(); }, u"VELTON POS"_s);
    }
};

TEST_F(RibbonTest, GrowsWithTheReceiptsAndStartsAnewAfterF6) {
    Keys(u"100{Enter}300{Enter}{F5}100{Enter}{F5}300{Enter}{F5}");
    const QByteArray ribbon = File(u"invoices.txt"_s);
    QFile::remove(Path(u"lpt1.prn"_s));
    ShowRibbon([&](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Printed Invoices");
        EXPECT_EQ(Get<QWidget>(form, u"cmdSacuvaj")->toolTip(), u"Snimi na flopi,USBdisk,disk...");
        EXPECT_EQ(Box(form, u"rtBox").toLatin1().replace("\n", "\r\n"), ribbon);
        const auto* down = Get<QAbstractScrollArea>(form, u"rtBox")->verticalScrollBar();
        EXPECT_GT(down->maximum(), 0);
        EXPECT_EQ(down->value(), down->maximum()) << "the latest receipt shows";
        drivers::Grab(form, u"frmTrakaRacuna"_s);
        Keys(u"{F5}");
        EXPECT_EQ(File(u"lpt1.prn"_s), ribbon);
        Keys(u"{F6}");
        EXPECT_EQ(Box(form, u"rtBox"), u"");
        Keys(u"{F12}");
    });
    EXPECT_FALSE(QFile::exists(Path(u"invoices.txt"_s)));
    Keys(u"300{Enter}{F5}");
    EXPECT_TRUE(File(u"invoices.txt"_s).contains("INVOICE No:4 "));
    EXPECT_FALSE(File(u"invoices.txt"_s).contains("INVOICE No:3 "));
}

TEST_F(RibbonTest, IsSavedOnlyBesideAFileOfAnotherName) {
    Write(u"invoices.txt"_s, "ribbon\r\n");
    ShowRibbon([this](QWidget&) {
        Keys(u"{F4}");
        Write(u"racun.txt"_s, "");
        boxes_.ExpectFile(Path(u"copy.txt"_s));
        Keys(u"{F4}{F12}");
    });
    EXPECT_EQ(File(u"copy.txt"_s), "ribbon\r\n");
}

TEST_F(RibbonTest, MayBeMissingOrGoWhileItIsShown) {
    ShowRibbon([](QWidget& form) {
        EXPECT_EQ(Box(form, u"rtBox"), u"");
        Keys(u"{F5}{F6}{F12}");
    });
    Write(u"invoices.txt"_s, "ribbon\r\n");
    Write(u"racun.txt"_s, "");
    ShowRibbon([this](QWidget& form) {
        ASSERT_TRUE(QFile::remove(Path(u"invoices.txt"_s)));
        Keys(u"{F5}");
        boxes_.ExpectFile(Path(u"copy.txt"_s)).ExpectBeginning(u"76"_s);
        Keys(u"{F4}");
        Keys(u"{F6}");
        EXPECT_EQ(Box(form, u"rtBox"), u"");
        Keys(u"{F12}");
    });
    EXPECT_TRUE(File(u"lpt1.prn"_s).isEmpty());
    EXPECT_FALSE(QFile::exists(Path(u"copy.txt"_s)));
}

// Under a sanitizer each line costs many times as much, and the watch over modal windows would lose its patience.
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 ManyMegabytes = 4 * 1024 * 1024;
constexpr double MostExtraMemory = 400;  // it keeps what was freed
#else
constexpr qint64 ManyMegabytes = 64 * 1024 * 1024;
constexpr double MostExtraMemory = 40;
#endif

TEST_F(RibbonTest, OfManyMegabytesOpensAtOnceAndIsPrintedWithoutBeingLoaded) {
    WriteLongText(Path(u"invoices.txt"_s), ManyMegabytes);
    PeakMemory();
    const double before = PeakMemory();
    QElapsedTimer clock;
    clock.start();
    QStringList titles;
    ShowRibbon([&](QWidget& form) {
        RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
        EXPECT_LT(clock.elapsed(), 3000);
        QObject::connect(&form, &QWidget::windowTitleChanged, [&](const QString& title) { titles << title; });
        Keys(u"{F5}{F12}");
    });
    EXPECT_LT(PeakMemory() - before, MostExtraMemory);
    EXPECT_TRUE(titles.contains(u"Printed Invoices - 50 %"_s));
    EXPECT_EQ(titles.value(titles.size() - 1), u"Printed Invoices");
    EXPECT_EQ(File(u"lpt1.prn"_s), File(u"invoices.txt"_s));
}

}  // namespace
