#include "support/RtfReader.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTextDocument>
#include <random>

#include "help/RtfShown.h"

using namespace Qt::StringLiterals;

namespace {

struct Case {
    const char* name;
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
const auto NoEnd = u"The end of the text is missing."_s;
const auto TooManyEnds = u"The text closes more groups than it opens."_s;

const Case Letters[] = {
    {"Nothing", "{\\rtf1}", u""_s},
    {"PlainText", "{\\rtf1 One two.}", u"One two."_s},
    {"LineEndsOfTheSource", "{\\rtf1\r\nOne\r\n two.\n}\r\n", u"One two."_s},
    {"Groups", "{\\rtf1 a{\\b b{\\i c}d}e}", u"a<b>b</b><b><i>c</i></b><b>d</b>e"_s},
    {"SwitchedOff", "{\\rtf1\\b a\\b0 b\\i c\\i0\\ul d\\ulnone e\\ul f\\ul0 g}",
     u"<b>a</b>b<i>c</i><u>d</u>e<u>f</u>g"_s},
    {"Sizes", "{\\rtf1\\fs40 big\\fs24 usual{\\fs20 small}\\fs9999 huge\\fs back}",
     u"{26}bigusual{13}small{96}hugeback"_s},
    {"Plain", "{\\rtf1\\b\\i\\fs40 a\\plain b}", u"{26}<b><i>a</i></b>b"_s},
    {"Escapes", "{\\rtf1 \\{a\\}\\\\b\\~c\\_d\\-e}", u"{a}\\b\u00A0c\u2011d\u00ADe"_s},
    {"NamedCharacters", "{\\rtf1 a\\emdash b\\endash c\\lquote d\\rquote\\ldblquote e\\rdblquote}",
     u"a\u2014b\u2013c\u2018d\u2019\u201Ce\u201D"_s},
    {"BlankEndsAWord", "{\\rtf1 a\\b  b\\b0x\\tab y}", u"a<b> b</b>x»y"_s},
    {"UnknownWords", "{\\rtf1\\viewkind4\\xyz-12 a\\langnp1050 b\\|c}", u"abc"_s},
    {"HugeNumbers", "{\\rtf1\\fs99999999999999999999 a\\li-99999999999999999999\\par}", u"[li-1000]{96}a"_s},
};

const Case CodePages[] = {
    {"CentralEuropean", "{\\rtf1\\ansi\\ansicpg1250 Pi\\'e6e \\'9a\\'8a\\'9e\\'8e}",
     u"Piæe"_s.replace(u'æ', u'ć') + u" šŠžŽ"_s},
    {"WesternWithoutAPage", "{\\rtf1\\ansi\\'e6\\'80}", u"æ€"_s},
    {"HalfADigit", "{\\rtf1 a\\'g1b\\'", u"ag1b"_s, NoEnd},
    {"BytesWithoutACharacter", "{\\rtf1 a\\'00\\'07\\'81 b}", u"a b"_s},
    {"Unicode", "{\\rtf1 Vo\\u263?e, \\u8364?, \\u-10179?\\u-8704?}", u"Voće, €, \U0001F600"_s},
    {"FallbackOfSeveral", "{\\rtf1\\uc3 a\\u263abcd\\uc0\\u263e}", u"aćdće"_s},
    {"FallbackOfAByteOrAWord", "{\\rtf1\\u263\\'e6a\\u353\\tab b\\u382}c", u"ćašbž"_s, TooManyEnds},
    {"FallbackEndsWithItsGroup", "{\\rtf1{\\uc9\\u263 a}b}", u"ćb"_s},
};

const Case Paragraphs[] = {
    {"ParagraphsAndLines", "{\\rtf1 a\\par b\\line c\\par\\par d\\par}", u"a\nb/c\n\nd"_s},
    {"TheBackslashAtALineEnd", "{\\rtf1 a\\\nb\\\r\nc}", u"a\nb\n\nc"_s.replace(u"\n\n"_s, u"\n"_s)},
    {"Distances", "{\\rtf1\\pard\\li360\\sb120\\sa240 a\\par b\\par\\pard c\\par}",
     u"[li24 sb8 sa16]a\n[li24 sb8 sa16]b\nc"_s},
    {"ItsEndTellsHowItLooks", "{\\rtf1 a\\li360 b\\par{\\li720 c\\par}d}", u"[li24]ab\n[li48]c\n[li24]d"_s},
    {"Bullets", "{\\rtf1\\pard\\li360\\fi-240\\bullet\\tab one\\par\\bullet\\tab two\\par}",
     u"[li24 fi-16 tab16]•»one\n[li24 fi-16 tab16]•»two"_s},
    {"Headings", "{\\rtf1\\outlinelevel0{\\b\\fs40 A}\\par\\outlinelevel1 B\\par\\pard c}",
     u"[h1]{26}<b>A</b>\n[h2]B\nc"_s},
};

const Case Destinations[] = {
    {"Tables",
     "{\\rtf1{\\fonttbl{\\f0\\fswiss Roboto;}}{\\colortbl;\\red0\\green0\\blue0;}"
     "{\\stylesheet{\\s1 heading 1;\\par}}{\\info{\\title T}}a}",
     u"a"_s},
    {"Starred", "{\\rtf1{\\*\\generator Some 1.0;}a{\\*\\unheard{\\b of\\par}it}b}", u"ab"_s},
    {"Binary", QByteArray("{\\rtf1 a{\\pict\\bin4 }{}\\}b\\bin999999 c"), u"ab"_s, NoEnd},
    {"Links", "{\\rtf1 see {\\field{\\*\\fldinst{HYPERLINK \"Lozinka.rtf\"}}{\\fldrslt{\\ul here}}}, then}",
     u"see <a Lozinka.rtf>here</a>, then"_s},
    {"OtherFields", "{\\rtf1 page {\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}{\\fldrslt 2}}", u"page 12"_s},
};

const Case Damaged[] = {
    {"Empty", "", u""_s, NotRtf},
    {"PlainFile", "Some text.\n", u""_s, NotRtf},
    {"NoBackslash", "{rtf1 a}", u""_s, NotRtf},
    {"Html", "<html>{\\rtf1}</html>", u""_s, NotRtf},
    {"Truncated", "{\\rtf1 a\\par{\\b b", u"a\n<b>b</b>"_s, NoEnd},
    {"TruncatedWithinAWord", "{\\rtf1 a\\", u"a"_s, NoEnd},
    {"TooManyEnds", "{\\rtf1 a}}b", u"a"_s, TooManyEnds},
    {"MoreBehindTheEnd", "{\\rtf1 a}{\\rtf1 b}", u"a"_s, TooManyEnds},
    {"DeepGroups", "{\\rtf1 a" + QByteArray(100000, '{'), u"a"_s, u"The groups of the text are nested too deeply."_s},
    {"DeepButSound", "{\\rtf1" + QByteArray(150, '{') + "a" + QByteArray(151, '}'), u"a"_s},
};

constexpr auto NameOf = [](const auto& info) { return std::string(info.param.name); };

INSTANTIATE_TEST_SUITE_P(Letters, RtfReaderTest, testing::ValuesIn(Letters), NameOf);
INSTANTIATE_TEST_SUITE_P(CodePages, RtfReaderTest, testing::ValuesIn(CodePages), NameOf);
INSTANTIATE_TEST_SUITE_P(Paragraphs, RtfReaderTest, testing::ValuesIn(Paragraphs), NameOf);
INSTANTIATE_TEST_SUITE_P(Destinations, RtfReaderTest, testing::ValuesIn(Destinations), NameOf);
INSTANTIATE_TEST_SUITE_P(Damaged, RtfReaderTest, testing::ValuesIn(Damaged), NameOf);

// A help text with bytes changed, cut out and doubled, and mere heaps of RTF's own pieces: whatever comes, it is read
// to an end and can be laid out.
TEST(RtfFuzzTest, SurvivesWhatIsNoRtf) {
    QFile file(QString::fromUtf8(SOURCE_ROOT "/data/help/Lozinka.rtf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray sound = file.readAll();
    const QByteArrayList pieces = {"{",
                                   "}",
                                   "\\",
                                   "\\b ",
                                   "\\'e",
                                   "\\'e6",
                                   "\\u-4",
                                   "\\u64976 ",
                                   "\\u8233 ",
                                   "\\uc9 ",
                                   "\\par",
                                   "\\fi-9999 ",
                                   "\\li-99999 ",
                                   "\\tab ",
                                   "\\*",
                                   "\\bin9 ",
                                   "\\fs1 ",
                                   "\\line ",
                                   "\\fldinst HYPERLINK \"x\"",
                                   "\\fldrslt ",
                                   "\\outlinelevel-7 ",
                                   "\xff",
                                   "text "};
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
