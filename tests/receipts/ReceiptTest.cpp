#include <QDir>
#include <QDirIterator>

#include "ReceiptCase.h"
#include "core/Settings.h"
#include "output/CodePage.h"
#include "receipts/PrintInvoice.h"
#include "receipts/ReceiptLayout.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;

namespace {

class ReceiptTest : public ReceiptFixture, public testing::WithParamInterface<std::string> {};

TEST_P(ReceiptTest, LeavesTheseFilesBehind) {
    QDir(Path(u"."_s)).mkdir(u"out"_s);
    const ReceiptCase receipt = LoadReceiptCase(QString::fromStdString(GetParam()));
    PrintInvoice(receipt.invoice);

    EXPECT_FALSE(output::Channel1().IsOpen());
    for (const auto& [name, expected] : receipt.files.asKeyValueRange())
        EXPECT_EQ(Shown(Read(name)).toStdString(), expected.toStdString()) << name.toStdString();
    QDirIterator files(Path(u"."_s), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = QDir(Path(u"."_s)).relativeFilePath(files.next());
        EXPECT_TRUE(name == u"ports.ini" || receipt.files.contains(name)) << name.toStdString();
    }
}

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const QFileInfo& file : QDir(QString::fromUtf8(TEST_DATA "/receipts")).entryInfoList({u"*.txt"_s}))
        names.push_back(file.baseName().toStdString());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Cases, ReceiptTest, testing::ValuesIn(CaseNames()), [](const auto& info) {
    return QString::fromStdString(info.param).replace(u'-', u'_').toStdString();
});

// Whatever stands in the table, or is put in its place in another language.
TEST(ReceiptLayouts, FillTheWidthOfTheirPaper) {
    for (const ReceiptLayout* each : ReceiptLayouts()) {
        const ReceiptLayout& layout = *each;
        SCOPED_TRACE(layout.tipRacuna.toStdString());
        for (const QString& line : layout.head) EXPECT_EQ(output::Columns(line), layout.width);
        for (const PrintFields& line : layout.item) EXPECT_EQ(WidthOf(line), layout.width);
    }
}

class TwoReceipts : public ReceiptFixture {};

TEST_F(TwoReceipts, FollowEachOtherInEveryFile) {
    const InvoiceText invoice = LoadShop(u"TrakaRacunaFileDA=1\nFiskalniRacunDA=1"_s);
    PrintInvoice(invoice);
    const QByteArray ribbon = Read(u"invoices.txt"_s);
    const QByteArray fiscal = Read(u"fiscal.txt"_s);
    PrintInvoice(invoice);
    EXPECT_EQ(Read(u"invoices.txt"_s), ribbon + ribbon);
    EXPECT_EQ(Read(u"fiscal.txt"_s), fiscal + fiscal);
}

// A language changes the words of a line, not how many lines there are nor how far they go.
TEST_F(TwoReceipts, KeepToTheirPaperInEveryLanguage) {
    const auto print = [this](const InvoiceText& invoice) {
        for (const QString& name : {u"lpt1.prn"_s, u"invoices.txt"_s}) QFile::remove(Path(name));
        PrintInvoice(invoice);
        return (Read(u"lpt1.prn"_s) + Read(u"invoices.txt"_s)).split('\n');
    };
    for (const ReceiptLayout* layout : ReceiptLayouts()) {
        const InvoiceText invoice = LoadShop(u"TrakaRacunaFileDA=1\nTipRacuna="_s + layout->tipRacuna);
        const QByteArrayList plain = print(invoice);
        EXPECT_GT(plain.size(), 20);
        for (const values::Language& language : values::Languages()) {
            values::UseLanguage(values::Shown::OnPaper, language.code);
            const QByteArrayList lines = print(invoice);
            values::UseLanguage(values::Shown::OnPaper, {});
            SCOPED_TRACE((layout->tipRacuna + u' ' + language.code).toStdString());
            EXPECT_TRUE(lines != plain || language.code == u"en");
            ASSERT_EQ(lines.size(), plain.size());
            for (qsizetype i = 0; i < lines.size(); ++i)
                EXPECT_LE(lines[i].size(), qMax<qsizetype>(plain[i].size(), layout->width + 1)) << lines[i].constData();
        }
    }
}

TEST_F(TwoReceipts, ThePaperAndTheRibbonEachReadTheClock) {
    int seconds = 0;
    values::SetClock([&] { return QDateTime(QDate(2025, 12, 31), QTime(23, 59, 59)).addSecs(seconds++); });
    PrintInvoice(LoadShop(u"TrakaRacunaFileDA=1"_s));
    EXPECT_TRUE(Read(u"lpt1.prn"_s).contains("INVOICE No:17    31.12.2025  23:59:59\r\n"));
    EXPECT_TRUE(Read(u"invoices.txt"_s).contains("INVOICE No:17    01.01.2026  00:00:00\r\n"));
}

}  // namespace
