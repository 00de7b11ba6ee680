#include <QDir>
#include <QStringDecoder>

#include "output/Channel.h"
#include "reports/RegisterFixture.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Boxes;
using drivers::Keys;

namespace {

// What Report.txt holds after these keys: a file under tests/data/reports in UTF-8, its line ends standing for CR LF.
struct PrintCase {
    const char* file;
    const char* locale;
    const char* encoding;
    QString keys;
    bool review = false;
};

void PrintTo(const PrintCase& print, std::ostream* out) {
    *out << print.file;
}

const PrintCase PrintCases[] = {
    {"all-en_US", "en_US", "windows-1252", u"{F5}"_s},
    {"all-hr_HR", "hr_HR", "windows-1250", u"4{F5}"_s},
    {"registers-en_US", "en_US", "windows-1252", u"1{F4}"_s},
    {"cashiers-hr_HR", "hr_HR", "windows-1250", u"2{F4}"_s},
    {"invoices-en_US", "en_US", "windows-1252", u"3{F4}"_s},
    {"products-of-report-3", "hr_HR", "windows-1250", u"4{F4}"_s, true},
};

QString ExpectedReport(const char* name) {
    QFile file(QString::fromUtf8(TEST_DATA "/reports/") + QString::fromLatin1(name) + u".txt"_s);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return QString::fromUtf8(file.readAll());
}

class RegisterPrintTest : public RegisterFixture {};
class RegisterPrintCases : public RegisterFixture, public testing::WithParamInterface<PrintCase> {};

TEST_P(RegisterPrintCases, LeavesThisReport) {
    const PrintCase& print = GetParam();
    values::SetUserLocale(QLocale(QString::fromLatin1(print.locale)));
    if (print.review)
        ShowReview(u"3"_s, u"21. 11. 2026."_s, u"21:05:09"_s);
    else
        ShowState();
    QString expected = ExpectedReport(print.file);
    Boxes boxes;
    ExpectPreview(boxes, expected);
    Keys(print.keys);
    QStringDecoder decode(print.encoding);
    EXPECT_EQ(QString(decode(File(u"Report.txt"_s))).toStdString(), expected.replace(u'\n', u"\r\n"_s).toStdString());
    EXPECT_FALSE(output::Channel1().IsOpen());
}

INSTANTIATE_TEST_SUITE_P(Reports, RegisterPrintCases, testing::ValuesIn(PrintCases), [](const auto& info) {
    return QString::fromLatin1(info.param.file).replace(u'-', u'_').toStdString();
});

TEST_F(RegisterPrintTest, AnEmptyListPrintsNothing) {
    auto& form = ShowReview(u"8"_s, {}, {});
    Keys(u"{F5}{F4}");
    EXPECT_TRUE(File(u"Report.txt"_s).isNull());
    EXPECT_EQ(Box(form, u"lblTab"), u"CASH REGISTERS");
}

TEST_F(RegisterPrintTest, AFileThatCannotBeWrittenStillLeadsToThePreview) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"Report.txt"_s));
    auto& form = ShowState();
    Boxes boxes;
    ExpectPreview(boxes, {});
    Keys(u"{F5}");
    EXPECT_FALSE(output::Channel1().IsOpen());
    EXPECT_EQ(Box(form, u"lblTab"), u"PRODUCTS");
    EXPECT_FALSE(forms::ProgramIsEnding());
}

}  // namespace
