#include <QDir>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "ReceiptCase.h"
#include "core/Settings.h"
#include "receipts/PrintInvoice.h"

using namespace Qt::StringLiterals;

namespace {

const auto Pdf = u"printouts/20251124-090507-1.pdf"_s;

class PageReceiptTest : public ReceiptFixture {
protected:
    void SetUp() override {
        if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty()) GTEST_SKIP() << "pdftotext is missing";
    }
    QString TextOf(const QStringList& options) const {
        QProcess reader;
        reader.start(u"pdftotext"_s, options + QStringList{Path(Pdf), u"-"_s});
        reader.waitForFinished();
        return QString::fromUtf8(reader.readAllStandardOutput());
    }
    // Height of the first line that begins with a word, in points.
    double HeightOf(const QString& word) const {
        const QRegularExpression box(u"yMin=\"([0-9.]+)\" xMax=\"[0-9.]+\" yMax=\"([0-9.]+)\">"_s +
                                     QRegularExpression::escape(word));
        const auto match = box.match(TextOf({u"-bbox"_s}));
        EXPECT_TRUE(match.hasMatch()) << word.toStdString();
        return match.captured(2).toDouble() - match.captured(1).toDouble();
    }
};

TEST_F(PageReceiptTest, TheSameLinesStandOnThePageAndOnTheRibbon) {
    PrintInvoice(LoadShop(u"PrinterZaRacun=3\nFont=Courier New\nTrakaRacunaFileDA=1\ncustomer=Hotel"_s));
    const auto wordsOf = [](const QString& text) {
        return text.split(QRegularExpression(u"\\s+"_s), Qt::SkipEmptyParts);
    };
    EXPECT_EQ(wordsOf(TextOf({u"-layout"_s})), wordsOf(QString::fromUtf8(Read(u"invoices.txt"_s))));
    EXPECT_FALSE(Exists(u"lpt1.prn"_s));
}

TEST_F(PageReceiptTest, ThePageOfLayout5HasALargeNameAndNumber) {
    PrintInvoice(LoadShop(u"PrinterZaRacun=3\nTipRacuna=5\nVelFont=10\nTrakaRacunaFileDA=1"_s));
    const double points = HeightOf(u"Main"_s) / 10;
    EXPECT_NEAR(HeightOf(u"Corner"_s), 20 * points, points);
    EXPECT_NEAR(HeightOf(u"INVOICE"_s), 16 * points, points);
    EXPECT_NEAR(HeightOf(u"Cola"_s), 10 * points, points);
    EXPECT_NEAR(HeightOf(u"TOTAL"_s), 10 * points, points);
}

TEST_F(PageReceiptTest, ASizeThatIsNoNumberStillGivesAReceipt) {
    PrintInvoice(LoadShop(u"PrinterZaRacun=3\nVelFont="_s));
    EXPECT_TRUE(TextOf({}).contains(u"Thank you!"_s));
}

TEST_F(PageReceiptTest, AFailureOfThePageLeavesNoRibbonAndNoHalfJob) {
    Write(u"printouts"_s, "in the way");
    const auto invoice = LoadShop(u"PrinterZaRacun=3\nTrakaRacunaFileDA=1"_s);
    EXPECT_EQ(ErrorOf([&] { PrintInvoice(invoice); }), values::PathNotFound);
    EXPECT_FALSE(Exists(u"invoices.txt"_s));

    auto broken = LoadShop(u"PrinterZaRacun=3\nNazivFirme=Broken"_s);
    broken.items[0].code = QString(40, u'7');
    EXPECT_NE(ErrorOf([&] { PrintInvoice(broken); }), 0);
    QFile::remove(Path(u"printouts"_s));
    PrintInvoice(LoadShop(u"PrinterZaRacun=3"_s));
    EXPECT_FALSE(TextOf({}).contains(u"Broken"_s));
}

}  // namespace
