#include <random>

#include "store/CaseFold.h"
#include "store/LikePattern.h"
#include "store/StoreTestBase.h"

namespace store::test {

TEST(CaseFoldTest, ComparesLettersOfEveryAlphabetWithoutCase) {
    const std::vector<std::pair<QByteArrayView, QByteArrayView>> alike = {
        {"abcXYZ", "ABCxyz"}, {"čćžšđ", "ČĆŽŠĐ"}, {"Straße", "sTRAßE"}, {"ΣΊΣΥΦΟΣ", "σίσυφος"},
        {"ДЕЖ", "деж"},       {"ﬁ", "ﬁ"},         {"ſ", "S"},           {"\xF0\x90\x90\x80", "\xF0\x90\x90\xA8"}};
    for (const auto& [a, b] : alike) EXPECT_EQ(CompareFolded(a, b), 0) << a.toByteArray().toStdString();

    EXPECT_LT(CompareFolded("10", "9"), 0);
    EXPECT_LT(CompareFolded("a", "ab"), 0);
    EXPECT_GT(CompareFolded("b", "AB"), 0);
    EXPECT_LT(CompareFolded("z", "č"), 0);
    EXPECT_LT(CompareFolded("Č", "š"), 0);
    EXPECT_LT(CompareFolded("ž", "\xF0\x9F\x98\x80"), 0);
    EXPECT_NE(CompareFolded("i", "İ"), 0);
    EXPECT_NE(CompareFolded("ss", "ß"), 0);
    EXPECT_NE(CompareFolded({"a\0b", 3}, {"a\0c", 3}), 0);
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

TEST(LikePatternTest, KnowsRunsSingleCharactersDigitsAndSets) {
    struct Case {
        QByteArrayView pattern, text;
        bool matches;
    };
    const std::vector<Case> cases = {{"", "", true},
                                     {"", "a", false},
                                     {"*", "", true},
                                     {"*", "anything", true},
                                     {"a*", "Abc", true},
                                     {"a*", "bac", false},
                                     {"*ab*", "xxABxx", true},
                                     {"*ab*", "a b", false},
                                     {"*a*b*c*", "xaybzc", true},
                                     {"*a*b*c*", "acb", false},
                                     {"a?c", "aČc", true},
                                     {"a?c", "ac", false},
                                     {"???", "č😀x", true},
                                     {"##", "07", true},
                                     {"##", "7", false},
                                     {"#", "٣", false},
                                     {"[a-c]x", "Bx", true},
                                     {"[a-c]x", "dx", false},
                                     {"[!a-c]x", "dx", true},
                                     {"[!a-c]x", "ax", false},
                                     {"[abx]", "X", true},
                                     {"[*]", "*", true},
                                     {"[*]", "a", false},
                                     {"[?#]", "#", true},
                                     {"[-a]", "-", true},
                                     {"[a-]", "-", true},
                                     {"[!]", "!", true},
                                     {"[]a", "a", true},
                                     {"[a", "[a", true},
                                     {"a]", "a]", true},
                                     {"[č-ž]ar", "Šar", true},
                                     {"*ČAJ*", "zeleni čaj", true},
                                     {"*aab", "aaaaaab", true},
                                     {"*a*a*b", "aaaaaaac", false},
                                     {"*č", "Č", true},
                                     {"*k*", "300 \u212A", true},
                                     {"*s", "ſſ", true},
                                     {"*ß", "SS", false},
                                     {"*čaj*", "\xC4 ČAJ", true},
                                     {"*\xC4*", "a\xC4z", true},
                                     {"100%", "100%", true},
                                     {"a_c", "abc", false}};
    for (const auto& [pattern, text, matches] : cases)
        EXPECT_EQ(LikePattern(pattern).Matches(text), matches)
            << pattern.toByteArray().toStdString() << " on " << text.toByteArray().toStdString();
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

TEST_F(TextTest, FindsTextsWithoutRegardToCase) {
    for (const auto& name : {u"Šećer"_s, u"ČAJ zeleni"_s, u"đumbir"_s, u"Kava"_s}) AddProduct(name, name);
    const std::vector<std::pair<QString, QStringList>> cases = {
        {u"ProdCode = 'šEĆER'"_s, {u"Šećer"_s}},
        {u"ProdCode = 'secer'"_s, {}},
        {u"ProdDescription LIKE '*čaj*'"_s, {u"ČAJ zeleni"_s}},
        {u"ProdDescription LIKE 'Đ*'"_s, {u"đumbir"_s}},
        {u"ProdDescription LIKE '*A*'"_s, {u"ČAJ zeleni"_s, u"Kava"_s}},
        {u"ProdDescription LIKE 'k?v[a-c]'"_s, {u"Kava"_s}},
        {u"ProdDescription <> 'KAVA' AND ProdCode > 'š'"_s, {u"Šećer"_s}}};
    for (const auto& [condition, codes] : cases) {
        EXPECT_EQ(Column(u"SELECT ProdCode FROM Products WHERE "_s + condition), codes) << condition.toStdString();
        auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
        products.FindFirst(condition);
        EXPECT_EQ(products.NoMatch(), codes.empty()) << condition.toStdString();
        EXPECT_TRUE(codes.empty() || products[u"ProdCode"].Text() == codes.first());
    }
    EXPECT_EQ(ErrorOf([&] { AddProduct(u"šećer"_s, {}); }), DuplicateKey);
    store->Execute(u"UPDATE Products SET Unit = 'KG' WHERE Qty = 0 AND ProdCode > 'l'"_s);
    store->Execute(u"UPDATE Products SET Unit = 'kg' WHERE Unit IS NULL"_s);
    EXPECT_EQ(Column(u"SELECT Unit FROM Products GROUP BY Unit"_s).size(), 1);
}

TEST_F(TextTest, GivesBackEveryTextAsItWasWritten) {
    const QStringList texts = {u""_s,
                               u" "_s,
                               u"it's 'quoted'"_s,
                               u"100% \\ \"x\" ; -- no comment"_s,
                               QString(u"nul\0inside"_s.constData(), 10),
                               u"кириллица"_s,
                               u"שלום עולם \u200Fمرحبا"_s,
                               u"😀👩‍👩‍👧 smile"_s,
                               u"line\r\nbreak\ttab"_s,
                               QString(100000, u'č')};
    auto company = store->OpenRecordset(u"SELECT * FROM Company"_s);
    for (const QString& text : texts) {
        company.AddNew();
        company[u"Adresa"] = text;
        company.Update();
    }
    EXPECT_EQ(Column(u"SELECT Adresa FROM Company"_s), texts);
    EXPECT_EQ(Column(*OpenAgain(), u"SELECT Adresa FROM Company"_s), texts);
    EXPECT_EQ(Column(u"SELECT Adresa FROM Company WHERE Adresa = 'IT''S ''quoted'''"_s), QStringList{texts[2]});
}

}  // namespace store::test
