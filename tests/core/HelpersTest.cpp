#include "core/dbModule.h"
#include "output/Channel.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;

namespace {

TEST(TextHelpers, PadLeftKeepsAnOverlongTextAndPadRightCutsIt) {
    EXPECT_EQ(PadLeft(5, u"12345678"_s), u"12345678");
    EXPECT_EQ(PadRight(5, u"12345678"_s), u"12345");
    EXPECT_EQ(PadLeft(5, u"ab"_s), u"   ab");
    EXPECT_EQ(PadRight(5, u"ab"_s), u"ab   ");
    EXPECT_EQ(PadLeft(0, u""_s), u"");
    EXPECT_EQ(PadRight(0, u"ab"_s), u"");
    EXPECT_THROW(PadRight(-1, u"ab"_s), values::Error);
    // A sign of two UTF-16 units is one "?" on paper, a combining mark one beside its letter.
    EXPECT_EQ(PadLeft(4, u"a😀"_s), u"  a😀");
    EXPECT_EQ(PadRight(4, u"a😀"_s), u"a😀  ");
    EXPECT_EQ(PadRight(2, u"a😀😀"_s), u"a😀");
    EXPECT_EQ(PadRight(3, u"c\u030C"_s), u"c\u030C ");
}

TEST(TextHelpers, ProperCaseRaisesFirstLettersAndLowersNothing) {
    EXPECT_EQ(ProperCase(u""_s), u"");
    EXPECT_EQ(ProperCase(u"č"_s), u"Č");
    EXPECT_EQ(ProperCase(u"a b"_s), u"A B");
    EXPECT_EQ(ProperCase(u"porez NA promet\r\nrobe  i"_s), u"Porez NA Promet\r\nRobe  I");
    EXPECT_EQ(ProperCase(u"kraj\r\n"_s), u"Kraj\r\n");
    EXPECT_EQ(ProperCase(u"kraj "_s), u"Kraj ");
}

class HelpersTest : public drivers::TillTest {};

TEST_F(HelpersTest, OutputGoesOnlyWhereTheModeSays) {
    output::Channel1().OpenForOutput(Path(u"out.txt"_s));
    PrintToChannel(u"0"_s, u"nowhere"_s);
    PrintToChannel(u"1"_s, u"one"_s);
    FeedBlankLines(0);
    PrintToChannel(u"2"_s, u"two"_s);
    FeedBlankLines(2);
    output::Channel1().Close();
    EXPECT_EQ(File(u"out.txt"_s), "one\r\ntwo\r\n\r\n\r\n");
    EXPECT_THROW(PrintToChannel(u"1"_s, u"closed"_s), output::OutputError);
}

TEST_F(HelpersTest, TheLastEndReportIsZeroUntilThereIsOne) {
    LogIn();
    EXPECT_EQ(LastEndReportNumber(), 0);
    ExecuteSql(u"UPDATE Sales SET Grupni = 7"_s);
    EXPECT_EQ(LastEndReportNumber(), 7);
    ExecuteSql(u"UPDATE Sales SET Grupni = 40000"_s);
    EXPECT_THROW(LastEndReportNumber(), values::Error);
}

}  // namespace
