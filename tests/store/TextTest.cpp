#include <random>

#include "store/CaseFold.h"
#include "store/LikePattern.h"
#include "store/StoreTestBase.h"

namespace store::test {

// What no text in UTF-8 can say of tests/data/store/texts.txt.
TEST(CaseFoldTest, BytesThatAreNoTextAreComparedToo) {
    EXPECT_NE(CompareFolded({"a\0b", 3}, {"a\0c", 3}), 0);
    EXPECT_TRUE(LikePattern("*čaj*").Matches("\xC4 ČAJ"));
    EXPECT_TRUE(LikePattern("*\xC4*").Matches("a\xC4z"));
}

TEST(CaseFoldTest, ComparesBehindALongCommonBeginningAsWithoutIt) {
    const QByteArray endings[] = {"",    "a", "A",        "b",          "š",        "Š",        "č",
                                  "ša",  "đ", "\xC5\xA1", "\xC5",       "\xE2\x82", "\x82\x82", "€",
                                  "₽", "😀", "\xF0\x9F", "a\xC5\xA0z", "a\xC5z",   "aš",       "ač"};
    for (const QByteArray& beginning : {"3850000"_ba, "38500001"_ba, "Čokolada ž"_ba, "Mlijeko domaće 1 l"_ba}) {
        for (const QByteArray& a : endings)
            for (const QByteArray& b : endings)
                EXPECT_EQ(CompareFolded(beginning + a, beginning + b) <=> 0, CompareFolded(a, b) <=> 0)
                    << a.toStdString() << " and " << b.toStdString();
    }
}

// What `*` means, tried the long way.
bool Meets(const std::u32string& pattern, const std::u32string& text) {
    if (pattern.empty()) return text.empty();
    if (pattern[0] == U'*') return Meets(pattern.substr(1), text) || (!text.empty() && Meets(pattern, text.substr(1)));
    return !text.empty() && FoldCase(pattern[0]) == FoldCase(text[0]) && Meets(pattern.substr(1), text.substr(1));
}

TEST(LikePatternTest, FindsWhatATrialOfEveryRunFinds) {
    std::mt19937 random;
    const auto draw = [&random](std::u32string_view letters, size_t longest) {
        std::u32string text;
        for (size_t i = random() % (longest + 1); i > 0; --i) text += letters[random() % letters.size()];
        return text;
    };
    const auto utf8 = [](const std::u32string& text) { return QString::fromStdU32String(text).toUtf8(); };
    int met = 0;
    for (int i = 0; i < 20'000; ++i) {
        const std::u32string pattern = draw(U"aKsčß**", 5), text = draw(U"aAkK\u212AsSſčČßẞ😀", 8);
        const bool meets = Meets(pattern, text);
        met += meets ? 1 : 0;
        ASSERT_EQ(LikePattern(utf8(pattern)).Matches(utf8(text)), meets)
            << utf8(pattern).toStdString() << " on " << utf8(text).toStdString();
    }
    EXPECT_GT(met, 1'000);
}

using TextTest = StoreTest;

TEST_F(TextTest, GivesBackEveryTextAsItWasWritten) {
    QStringList texts = {u""_s,
                         u" "_s,
                         u"it's 'quoted'"_s,
                         u"100% \\ \"x\" ; -- no comment"_s,
                         u"кириллица"_s,
                         u"שלום עולם \u200Fمرحبا"_s,
                         u"😀👩‍👩‍👧 smile"_s,
                         u"line\r\nbreak\ttab"_s,
                         QString(100000, u'č')};
    // A server takes no zero character.
    if (!drivers::OnServer()) texts += QString(u"nul\0inside"_s.constData(), 10);
    auto company = store->OpenRecordset(u"SELECT * FROM Company"_s);
    for (const QString& text : texts) {
        company.AddNew();
        company[u"Adresa"] = text;
        company.Update();
    }
    EXPECT_EQ(Rows(u"SELECT Adresa FROM Company"_s), texts);
    EXPECT_EQ(RowsOf(*OpenAgain(), u"SELECT Adresa FROM Company"_s), texts);
    EXPECT_EQ(Rows(u"SELECT Adresa FROM Company WHERE Adresa = 'IT''S ''quoted'''"_s), QStringList{texts[2]});
}

}  // namespace store::test
