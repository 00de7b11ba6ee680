#include "output/PagePrinter.h"

#include <QDir>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>

#include "OutputFixture.h"
#include "values/Clock.h"

using namespace Qt::StringLiterals;
using namespace output;

namespace {

class PagePrinterTest : public OutputFixture {
protected:
    PagePrinterTest() {
        values::SetClock([] { return QDateTime(QDate(2025, 11, 24), QTime(9, 5, 7)); });
    }
    ~PagePrinterTest() override { values::SetClock({}); }
    void SetUp() override {
        if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty()) GTEST_SKIP() << "pdftotext is missing";
    }

    // The lines of each page, without the blanks between and around the words.
    QList<QStringList> Pages(const QString& pdf) const {
        QProcess reader;
        reader.start(u"pdftotext"_s, {u"-layout"_s, Path(pdf), u"-"_s});
        reader.waitForFinished();
        QList<QStringList> pages;
        for (const QString& page : QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f', Qt::SkipEmptyParts)) {
            QStringList lines;
            for (const QString& line : page.split(u'\n'))
                if (!line.trimmed().isEmpty()) lines << line.simplified();
            pages << lines;
        }
        return pages;
    }

    PagePrinter& printer = ThePagePrinter();
    QString First = u"printouts/20251124-090507-1.pdf"_s;
    QString Second = u"printouts/20251124-090507-2.pdf"_s;
};

TEST_F(PagePrinterTest, AJobIsOneFileAndEachLineOneLine) {
    printer.SetFontName(u"No Such Font"_s);
    printer.SetFontSize(9);
    printer.PrintLine(u"šećer   1,50"_s);
    printer.PrintLine({});
    printer.PrintLine(u"two\r\nparts"_s);
    EXPECT_FALSE(Exists(First));
    printer.EndJob();
    EXPECT_EQ(Pages(First), (QList<QStringList>{{u"šećer 1,50"_s, u"two"_s, u"parts"_s}}));

    printer.PrintLine(u"second job"_s);
    printer.EndJob();
    EXPECT_EQ(Pages(Second), (QList<QStringList>{{u"second job"_s}}));
}

TEST_F(PagePrinterTest, AFullPageIsFollowedByAnotherAndNoLineIsLost) {
    printer.SetFontName(u"Courier New Bold"_s);
    printer.SetFontSize(10);
    QStringList expected;
    for (int i = 0; i < 200; ++i) {
        expected << u"line %1"_s.arg(i);
        printer.PrintLine(expected.last());
    }
    printer.EndJob();
    const auto pages = Pages(First);
    EXPECT_GE(pages.size(), 3);
    QStringList printed;
    for (const auto& page : pages) printed << page;
    EXPECT_EQ(printed, expected);
}

TEST_F(PagePrinterTest, ASizeThatNoPageHoldsIsNine) {
    for (const double size : {0.0, -1.0, 1000.0, 1e300}) {
        printer.SetFontSize(size);
        for (int i = 0; i < 30; ++i) printer.PrintLine(u"line"_s);
        printer.EndJob();
        EXPECT_EQ(Pages(First).size(), 1) << size;
        QFile::remove(Path(First));
    }
    printer.SetPaper({QPageSize(QPageSize::A6), QPageLayout::Portrait, {}});
    printer.SetFontSize(450);
    printer.PrintLine(u"line"_s);
    printer.PrintLine(u"line"_s);
    printer.SetPaper({});
    printer.EndJob();
    EXPECT_EQ(Pages(First).size(), 1);
}

TEST_F(PagePrinterTest, NothingPrintedOrAbandonedLeavesNoFile) {
    printer.EndJob();
    printer.PrintLine(u"never mind"_s);
    printer.Abandon();
    printer.EndJob();
    EXPECT_FALSE(Exists(u"printouts"_s));
}

TEST_F(PagePrinterTest, AFolderThatCannotBeMadeIsReportedAndEndsTheJob) {
    Write(u"printouts"_s, "in the way");
    printer.PrintLine(u"line"_s);
    EXPECT_EQ(ErrorOf([&] { printer.EndJob(); }), values::PathNotFound);
    QFile::remove(Path(u"printouts"_s));
    printer.EndJob();
    EXPECT_FALSE(Exists(u"printouts"_s));
}

}  // namespace
