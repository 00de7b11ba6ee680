#include "forms/TextView.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <ctime>

#include "forms/Program.h"
#include "receipts/frmTrakaRacuna.h"
#include "support/Files.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Keys;

namespace {

// Lines as a ribbon has them, about so many bytes of them, and "last line" behind them.
void WriteLongText(const QString& path, qsizetype size) {
    const QByteArray line = "Cola                 1.50     2    3.00\r\n";
    drivers::WriteFile(path, line.repeated(size / line.size()) + "last line\r\n");
}

// By the process's own time: others may hold the machine meanwhile.
void ExpectLittleWorkSince(std::clock_t before) {
    const auto seconds = (std::clock() - before) / CLOCKS_PER_SEC;
    EXPECT_LT(seconds, 10);
}

class TextViewTest : public drivers::ScreenTest {
protected:
    QString Text(const QByteArray& bytes) {
        const QString path = folder.filePath(u"text.txt"_s);
        drivers::WriteFile(path, bytes);
        return path;
    }
    // The part of the picture that lies below this height.
    static bool HasInk(forms::TextView& view, int from) {
        const QImage picture = view.grab().toImage();
        for (int y = from; y < picture.height() - 4; ++y)
            for (int x = 4; x < picture.width() - 20; ++x)
                if (picture.pixelColor(x, y).lightness() < 100) return true;
        return false;
    }
};

TEST_F(TextViewTest, KnowsItsLinesWhateverTheirEnds) {
    const std::pair<QByteArray, QStringList> cases[] = {
        {"", {}},
        {"one", {u"one"_s}},
        {"one\r\n", {u"one"_s}},
        {"one\ntwo\r\n\r\nfour", {u"one"_s, u"two"_s, u""_s, u"four"_s}},
        {"\r\n\r\n", {u""_s, u""_s}},
        {"\xC8", {u"È"_s}},
    };
    forms::TextView view;
    for (const auto& [bytes, lines] : cases) {
        ASSERT_TRUE(view.Open(Text(bytes)));
        QStringList shown;
        for (int line = 0; line < view.LineCount(); ++line) shown << view.Line(line);
        EXPECT_EQ(shown, lines) << bytes.toStdString();
    }
    EXPECT_FALSE(view.Open(folder.filePath(u"missing"_s)));
    EXPECT_EQ(view.LineCount(), 0) << "nothing of the file before";
    EXPECT_EQ(view.Line(7), u"");
}

TEST_F(TextViewTest, LongLinesAreShownInPiecesAndNothingOfThemIsLost) {
    const QByteArray bytes = QByteArray(3 * 1024 * 1024, 'x') + "\nend";
    forms::TextView view;
    ASSERT_TRUE(view.Open(Text(bytes)));
    EXPECT_GT(view.LineCount(), 700);
    EXPECT_EQ(view.Line(view.LineCount() - 1), u"end");
    EXPECT_EQ(view.PlainText().toLatin1(), bytes);
    EXPECT_EQ(view.property("plainText").toString().size(), bytes.size());
}

TEST_F(TextViewTest, FiftyMegabytesOpenAtOnceAndScrollToTheirEnd) {
    const QString path = folder.filePath(u"ribbon.txt"_s);
    WriteLongText(path, 50 * 1024 * 1024);
    forms::TextView view;
    view.resize(700, 500);
    view.show();
    const std::clock_t before = std::clock();
    ASSERT_TRUE(view.Open(path));
    view.ScrollToEnd();
    view.grab();
    ExpectLittleWorkSince(before);
    EXPECT_GT(view.LineCount(), 1'000'000);
    EXPECT_TRUE(HasInk(view, 400)) << "the end of the text stands at the bottom";
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(view.Line(view.LineCount() - 1), u"last line") << "also when the file was deleted meanwhile";
}

TEST_F(TextViewTest, AFileThatIsCutOffShowsWhatIsLeft) {
    forms::TextView view;
    const QString path = Text("one\ntwo\nthree\n");
    ASSERT_TRUE(view.Open(path));
    QFile(path).resize(5);
    EXPECT_EQ(view.Line(1), u"t");
    EXPECT_EQ(view.Line(2), u"");
    view.grab();
}

TEST_F(TextViewTest, ScrollsByKeysAndCopiesWhatIsMarked) {
    const QString path = folder.filePath(u"text.txt"_s);
    WriteLongText(path, 4000);
    forms::TextView view;
    view.resize(300, 200);
    view.show();
    view.activateWindow();
    view.setFocus();
    drivers::Settle();
    ASSERT_TRUE(view.Open(path));
    QScrollBar* down = view.verticalScrollBar();
    Keys(u"{PgDn}");
    EXPECT_GT(down->value(), 3);
    Keys(u"{End}");
    EXPECT_EQ(down->value(), down->maximum());
    Keys(u"{Up}");
    EXPECT_EQ(down->value(), down->maximum() - 1);
    Keys(u"{Right}");
    EXPECT_GT(view.horizontalScrollBar()->value(), 0);
    Keys(u"{Home}");
    EXPECT_EQ(down->value(), 0);
    Keys(u"{Ctrl+a}{Ctrl+c}");
    EXPECT_EQ(QApplication::clipboard()->text() + u'\n', view.PlainText());
}

// Megabytes of memory that the process had in use at most since it was last asked.
double PeakMemory() {
    double peak = 0;
    for (const QByteArray& line : drivers::ReadFile(u"/proc/self/status"_s).split('\n'))
        if (line.startsWith("VmHWM:")) peak = line.mid(6).simplified().split(' ').value(0).toDouble() / 1024;
    QFile reset(u"/proc/self/clear_refs"_s);
    if (reset.open(QIODevice::WriteOnly)) reset.write("5");
    return peak;
}

// Under a sanitizer each line costs many times as much, and the watch over modal windows would lose its patience.
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 ManyMegabytes = 4 * 1024 * 1024;
constexpr double MostExtraMemory = 400;  // it keeps what was freed
#else
constexpr qint64 ManyMegabytes = 64 * 1024 * 1024;
constexpr double MostExtraMemory = 40;
#endif

class RibbonTest : public drivers::TillTest {};

TEST_F(RibbonTest, OfManyMegabytesOpensAtOnceAndIsPrintedWithoutBeingLoaded) {
    LogIn();
    WriteLongText(Path(u"invoices.txt"_s), ManyMegabytes);
    PeakMemory();
    const double before = PeakMemory();
    const std::clock_t start = std::clock();
    QStringList titles;
    drivers::Boxes boxes;
    boxes.ExpectForm(u"frmTrakaRacuna"_s, [&](QWidget& form) {
        ExpectLittleWorkSince(start);
        QObject::connect(&form, &QWidget::windowTitleChanged, [&](const QString& title) { titles << title; });
        Keys(u"{F5}{F12}");
    });
    forms::Run([] { frmTrakaRacuna().ShowModal(); }, u"VELTON POS"_s);
    EXPECT_LT(PeakMemory() - before, MostExtraMemory);
    EXPECT_TRUE(titles.contains(u"Printed Invoices - 50 %"_s));
    EXPECT_EQ(titles.value(titles.size() - 1), u"Printed Invoices");
    EXPECT_EQ(File(u"lpt1.prn"_s), File(u"invoices.txt"_s));
}

}  // namespace
