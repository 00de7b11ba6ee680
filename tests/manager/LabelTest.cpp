#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include "manager/labels/LabelPages.h"
#include "manager/labels/LabelText.h"
#include "support/ScreenTest.h"
#include "support/ValueOf.h"

using namespace Qt::StringLiterals;
using namespace manager;
using upkeep::Barcode;

namespace {

upkeep::ShelfGood Good(const QString& code) {
    return {.code = code,
            .name = u"Mineralna voda gazirana 6x1,5 l"_s,
            .unit = u"pcs"_s,
            .price = drivers::MoneyOf(u"8.95"_s),
            .tax = u"P"_s,
            .group = 0};
}

QString Output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

// What a scanner reads in a picture, with the kind of its bars before it.
QString ScanOf(const QString& picture) {
    return Output(u"zbarimg"_s, {u"-q"_s, u"-Sisbn10.disable"_s, u"-Sisbn13.disable"_s, picture});
}

LabelPages PageOf(const upkeep::LabelSheet& sheet, int dots, const QString& code) {
    return {sheet, 0, dots, {{FactsOf(Good(code), u"KM"_s), 1}}};
}

// A dot a pixel, with smooth edges where there are any.
QImage PictureOf(const LabelPages& pages) {
    const Dots dots = pages.Measure();
    const QSize size(dots.Of(pages.Paper().width()) / dots.Parts(), dots.Of(pages.Paper().height()) / dots.Parts());
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(1.0 / dots.Parts(), 1.0 / dots.Parts());
    pages.Paint(painter, 0);
    return picture;
}

// The widths of black and white runs through the bars, in dots; 0 for a dot that is neither.
std::vector<int> RunsOf(const QImage& picture, int row) {
    std::vector<int> runs{0};
    bool isBlack = false;
    for (int x = 0; x < picture.width(); ++x) {
        const int grey = qGray(picture.pixel(x, row));
        if (grey != 0 && grey != 255) return {0};
        if ((grey == 0) != isBlack) {
            isBlack = !isBlack;
            runs.push_back(0);
        }
        ++runs.back();
    }
    return runs;
}

constexpr double RowOfBars = 0.72;

class LabelTest : public drivers::ScreenTest {
protected:
    QTemporaryDir folder_;
};

const std::pair<QString, QString> Codes[] = {
    {u"4006381333931"_s, u"EAN-13:4006381333931"_s},
    {u"96385074"_s, u"EAN-8:96385074"_s},
    {u"A-17/b"_s, u"CODE-128:A-17/b"_s},
    {u"4006381333932"_s, u"CODE-128:4006381333932"_s},
};

}  // namespace

TEST_F(LabelTest, AScannerReadsWhatALabelPrinterPrints) {
    for (const int dots : {203, 300, 600})
        for (const auto& [code, scan] : Codes) {
            const QString path = folder_.filePath(u"label.png"_s);
            ASSERT_TRUE(PictureOf(PageOf(upkeep::SingleLabel({57, 32}), dots, code)).save(path));
            EXPECT_EQ(ScanOf(path), scan) << dots;
        }
}

TEST_F(LabelTest, AScannerReadsASheetSavedAsPdf) {
    std::vector<LabelCopies> labels;
    QStringList expected;
    for (const auto& [code, scan] : Codes) {
        labels.push_back({FactsOf(Good(code), u"KM"_s), 1});
        expected << scan;
    }
    const LabelPages pages(upkeep::CommonSheets().front(), 5, 203, labels);
    PrintPages(pages, folder_.filePath(u"sheet.pdf"_s));
    Output(u"pdftoppm"_s, {u"-r"_s, u"203"_s, u"-png"_s, u"-singlefile"_s, folder_.filePath(u"sheet.pdf"_s),
                           folder_.filePath(u"sheet"_s)});
    QStringList scans = ScanOf(folder_.filePath(u"sheet.png"_s)).split(u'\n');
    scans.sort();
    expected.sort();
    EXPECT_EQ(scans, expected);
}

TEST_F(LabelTest, BarsAreWholeDotsBetweenTheirQuietZones) {
    for (const int dots : {203, 300, 600})
        for (const auto& [code, scan] : Codes) {
            const LabelPages pages = PageOf(upkeep::SingleLabel({57, 32}), dots, code);
            const QImage picture = PictureOf(pages);
            const std::vector<int> runs = RunsOf(picture, static_cast<int>(picture.height() * RowOfBars));
            ASSERT_GT(runs.size(), 20U) << scan.toStdString() << " at " << dots;
            const int module = *std::min_element(runs.begin() + 1, runs.end() - 1);
            for (size_t i = 1; i + 1 < runs.size(); ++i) EXPECT_EQ(runs[i] % module, 0);
            EXPECT_GE(runs.front(), 7 * module);
            EXPECT_GE(runs.back(), 7 * module);
            EXPECT_GE(module * 25.4 / dots, 0.16);
        }
}

// A code of 13 letters takes more than a narrow label has.
TEST_F(LabelTest, BarsThatDoNotFitAreLeftOutAndCounted) {
    const LabelPages narrow = PageOf(upkeep::SingleLabel({40, 30}), 203, u"ABCDEFGHIJKLM"_s);
    EXPECT_EQ(narrow.WithoutBars(), 1);
    const QImage picture = PictureOf(narrow);
    picture.save(folder_.filePath(u"narrow.png"_s));
    EXPECT_EQ(ScanOf(folder_.filePath(u"narrow.png"_s)), QString());
    EXPECT_EQ(PageOf(upkeep::SingleLabel({62, 29}), 203, u"ABCDEFGHIJKLM"_s).WithoutBars(), 0);
    EXPECT_EQ(PageOf(upkeep::SingleLabel({62, 29}), 203, u"Č"_s).WithoutBars(), 1);
}

TEST_F(LabelTest, LongNamesAreWrappedAndAtLastMarkedAsCut) {
    const QString name = u"Čokoladni deserti sa lješnjacima"_s;
    const QSize place(600, 160);
    const FittedText two = FitLines(name, place, 40, 120, 2);
    EXPECT_EQ(two.lines.join(u' '), name);
    EXPECT_GT(two.font.pixelSize(), 40);
    const FittedText cut = FitLines(name + u' ' + name + u' ' + name, place, 60, 120, 2);
    ASSERT_EQ(cut.lines.size(), 2);
    EXPECT_TRUE(cut.lines[1].endsWith(u'…'));
}
