#include "support/RtfReader.h"

#include <gtest/gtest.h>

#include <QTextDocument>
#include <random>

#include "help/RtfShown.h"
#include "support/Files.h"

using namespace Qt::StringLiterals;

namespace {

struct Case {
    std::string name;
    QByteArray rtf;
    QString shown;
    QString fault = {};
};

// The end of the first line of googletest's failures.
void PrintTo(const Case& c, std::ostream* out) {
    *out << c.rtf.toStdString();
}

class RtfReaderTest : public testing::TestWithParam<Case> {};

TEST_P(RtfReaderTest, Shows) {
    QTextDocument document;
    document.setPlainText(u"what was there before"_s);
    const QString fault = ReadRtf(GetParam().rtf, document);
    EXPECT_EQ(ShownParagraphs(document).toStdString(), GetParam().shown.toStdString());
    EXPECT_EQ(fault.toStdString(), GetParam().fault.toStdString());
}

const auto NotRtf = u"This is not a text in RTF."_s;

// What a line of text cannot hold.
const Case LongOrBroken[] = {
    {"LineEndsOfTheSource", "{\\rtf1\r\nOne\r\n two.\n}\r\n", u"One two."_s},
    {"TheBackslashAtALineEnd", "{\\rtf1 a\\\nb\\\r\nc}", u"a\nb\nc"_s},
    {"CharactersThatNobodySees", "{\\rtf1 \\{a\\}\\\\b\\~c\\_d\\-e}", u"{a}\\b\u00A0c\u2011d\u00ADe"_s},
    {"PlainFile", "Some text.\n", u""_s, NotRtf},
    {"DeepGroups", "{\\rtf1 a" + QByteArray(100000, '{'), u"a"_s, u"The groups of the text are nested too deeply."_s},
    {"DeepButSound", "{\\rtf1" + QByteArray(150, '{') + "a" + QByteArray(151, '}'), u"a"_s},
};

std::vector<Case> Texts() {
    const auto texts = QString::fromUtf8(drivers::ReadFile(QStringLiteral(TEST_DATA "/rtf.txt")));
    std::vector<Case> cases;
    for (const QString& text : texts.split(u"\n== "_s).mid(1)) {
        const QString shown = text.section(u"\n--\n"_s, 1).section(u"\n! "_s, 0, 0);
        cases.push_back({text.section(u'\n', 0, 0).toStdString(), text.section(u'\n', 1, 1).toUtf8(),
                         shown.endsWith(u'\n') ? shown.chopped(1) : shown, text.section(u"\n! "_s, 1).trimmed()});
    }
    return cases;
}

constexpr auto NameOf = [](const auto& info) { return info.param.name; };

INSTANTIATE_TEST_SUITE_P(LongOrBroken, RtfReaderTest, testing::ValuesIn(LongOrBroken), NameOf);
INSTANTIATE_TEST_SUITE_P(Texts, RtfReaderTest, testing::ValuesIn(Texts()), NameOf);

// A help text with bytes changed, cut out and doubled, and mere heaps of RTF's own pieces: whatever comes, it is read
// to an end and can be laid out.
TEST(RtfFuzzTest, SurvivesWhatIsNoRtf) {
    const QByteArray sound = drivers::ReadFile(QStringLiteral(SOURCE_ROOT "/data/help/Lozinka.rtf"));
    const QByteArrayList pieces =
        QByteArray(
            "{|}|\\|\\b |\\'e|\\'e6|\\u-4|\\u64976 |\\u8233 |\\uc9 |\\par|\\fi-9999 |\\li-99999 |\\tab |\\*|\\bin9 |"
            "\\fs1 |\\line |\\fldinst HYPERLINK \"x\"|\\fldrslt |\\outlinelevel-7 |\xff|text ")
            .split('|');
    std::mt19937 random(20261124);
    const auto below = [&](qsizetype limit) { return static_cast<qsizetype>(random() % static_cast<quint64>(limit)); };
    int faults = 0;
    for (int round = 0; round < 1500; ++round) {
        QByteArray rtf = round % 2 ? sound : QByteArray("{\\rtf1 ");
        for (int change = 0; change < 20; ++change) {
            const QByteArray& piece = pieces[below(pieces.size())];
            const qsizetype place = round % 2 ? below(rtf.size()) : rtf.size();
            rtf = change % 3 ? rtf.insert(place, piece) : rtf.replace(place, below(9), piece);
        }
        QTextDocument document;
        document.setTextWidth(300);
        faults += !ReadRtf(rtf, document).isEmpty();
        ASSERT_LT(document.size().height(), 1e6) << rtf.toStdString();
    }
    EXPECT_GT(faults, 300);
}

}  // namespace
