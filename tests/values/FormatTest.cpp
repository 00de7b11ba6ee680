#include "values/Format.h"

#include <cmath>

#include "UnderLocale.h"
#include "values/Numbers.h"

using namespace values;

namespace {

constexpr const char* Grouped = "###,###,##0.00";

struct OfDouble {
    double number;
    const char* pattern;
    const char* text;
};

struct OfText {
    const char* locale;
    const char* given;
    const char* pattern;
    const char* text;
};

}  // namespace

TEST(Format, DoublesRoundHalfAwayFromZeroAtFifteenDigits) {
    const OfDouble numbers[] = {
        {2.675, "0.00", "2.68"},
        {-2.675, "0.00", "-2.68"},
        {1.005, "0.00", "1.01"},
        {1.115, "0.00", "1.12"},
        {0.125, "0.00", "0.13"},
        {-0.125, "0.00", "-0.13"},
        {2.665, "0.00", "2.67"},
        {2.6749999, "0.00", "2.67"},
        {0.1 + 0.2, "0.00", "0.30"},
        {1.1 * 1.1 * 50, "0.00", "60.50"},
        {0.005, "0.00", "0.01"},
        {-0.005, "0.00", "-0.01"},
        {0.00499, "0.00", "0.00"},
        {-0.00499, "0.00", "0.00"},
        {-0.0, "0.00", "0.00"},
        {0, "0.00", "0.00"},
        {99.995, "0.00", "100.00"},
        {9.9949, "0.00", "9.99"},
        {1234567.5, "0.00", "1234567.50"},
        {123456789012.345, "0.00", "123456789012.35"},
        {1e21, "0.00", "1000000000000000000000.00"},
        {1e-200, "0.00", "0.00"},
        {1.5, "0.000", "1.500"},
        {-1.0005, "0.000", "-1.001"},
        {17, "000000", "000017"},
        {-17, "000000", "-000017"},
        {17.5, "000000", "000018"},
        {0.4, "000000", "000000"},
        {1234567, "000000", "1234567"},
        {0, Grouped, "0.00"},
        {999.994, Grouped, "999.99"},
        {999.995, Grouped, "1,000.00"},
        {-1284.55, Grouped, "-1,284.55"},
        {-0.001, Grouped, "0.00"},
        {1234567890.125, Grouped, "1,234,567,890.13"},
        {1234.5, "#,##0", "1,235"},
        {1.5, "0.##", "1.5"},
        {1.256, "0.0#", "1.26"},
        {2, "0.0#", "2.0"},
        {1.50, "", "1.5"},
        {-1234567.0, "", "-1234567"},
    };
    UnderLocale locale("en_US");
    for (const auto& [number, pattern, text] : numbers) {
        SCOPED_TRACE(std::string(pattern) + " of " + std::to_string(number));
        EXPECT_EQ(Utf8(Format(number, Text(pattern))), text);
        EXPECT_EQ(Utf8(Format(Value(number), Text(pattern))), text);
    }
    EXPECT_EQ(ErrorOf([] { return Format(std::nan(""), u"0.00"); }), Overflow);
}

TEST(Format, MoneyIsRoundedFromItsOwnDigits) {
    UnderLocale locale("en_US");
    const OfText amounts[] = {
        {"", "2.675", "0.00", "2.68"},
        {"", "2.6749", "0.00", "2.67"},
        {"", "-2.6750", "0.00", "-2.68"},
        {"", "-0.0049", "0.00", "0.00"},
        {"", "0.0051", "0.00", "0.01"},
        {"", "922337203685477.5807", "0.00", "922337203685477.58"},
        {"", "922337203685477.5807", Grouped, "922,337,203,685,477.58"},
        {"", "-922337203685477.5808", "0.000", "-922337203685477.581"},
        {"", "17", "000000", "000017"},
        {"", "1.3000", "", "1.3"},
    };
    for (const auto& [unused, given, pattern, text] : amounts) {
        SCOPED_TRACE(given);
        EXPECT_EQ(Utf8(Format(CMoney(Text(given)), Text(pattern))), text);
        EXPECT_EQ(Utf8(Format(Text(given), Text(pattern))), text) << "the same from a text";
    }
}

TEST(Format, TextsThatAreNumbersAreWrittenUnderTheUsersLocale) {
    const OfText texts[] = {
        {"en_US", "12.5", "0.00", "12.50"},
        {"en_US", "1,234.5", "0.00", "1234.50"},
        {"en_US", "2.675", "0.00", "2.68"},
        {"en_US", "  3 ", "0.00", "3.00"},
        {"en_US", "", "0.00", ""},
        {"en_US", " ", "0.00", " "},
        {"en_US", "12,5", "0.00", "12,5"},
        {"en_US", "Cola", "0.00", "Cola"},
        {"en_US", "-", "000000", "-"},
        {"en_US", "42", "000000", "000042"},
        {"en_US", "12345678901234567.885", "0.00", "12345678901234567.89"},
        {"en_US", "1e999999999999", "0.00", "1e999999999999"},
        {"en_US", "1e-999999999999", "0.00", "0.00"},
        {"hr_HR", "12,5", "0.00", "12,50"},
        {"hr_HR", "12.5", "0.00", "12.5"},
        {"hr_HR", "-1284,555", Grouped, "-1.284,56"},
        {"hr_HR", "1.284,5", "", "1284,5"},
        {"de_DE", "1284567,5", Grouped, "1.284.567,50"},
        {"de_CH", "1284567.5", Grouped, "1’284’567.50"},
        {"fr_FR", "1284567,5", Grouped, "1\u202f284\u202f567,50"},
        {"C", "1284567.5", Grouped, "1,284,567.50"},
        {"ar_EG", "1284567٫5", Grouped, "1٬284٬567٫50"},
    };
    for (const auto& [name, given, pattern, text] : texts) {
        SCOPED_TRACE(std::string(name) + ": \"" + given + '"');
        UnderLocale locale(name);
        EXPECT_EQ(Utf8(Format(Text(given), Text(pattern))), text);
    }
}

TEST(Format, AmountsAreRoundedToTwoDecimalsAwayFromZero) {
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    const std::pair<qint64, const char*> amounts[] = {{0, "0,00"},
                                                      {49, "0,00"},
                                                      {50, "0,01"},
                                                      {-49, "0,00"},
                                                      {-50, "-0,01"},
                                                      {1'000, "0,10"},
                                                      {26'750, "2,68"},
                                                      {99'949, "9,99"},
                                                      {99'950, "10,00"},
                                                      {-123'400, "-12,34"},
                                                      {largest, "922337203685477,58"},
                                                      {-largest - 1, "-922337203685477,58"}};
    UnderLocale locale("hr_HR");
    for (const auto& [units, text] : amounts) EXPECT_EQ(Utf8(Format(Money::FromUnits(units), u"0.00")), text);
}

TEST(Format, GroupedTextsAreReadBackInEveryLocale) {
    for (const auto& each : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        UnderLocale locale(each);
        for (const qint64 hundredths : {0LL, 5LL, -99999LL, 100000LL, 128456750LL, -92233720368547758LL}) {
            const Money money = Money::FromUnits(hundredths * 100);
            const QString text = Format(money, Text(Grouped));
            ASSERT_EQ(CMoney(text), money) << each.name().toStdString() << " " << Utf8(text);
        }
    }
}

TEST(Format, DatesAndTimesFollowTheirPatternsInEveryLocale) {
    const QDate date(2024, 4, 3);
    struct {
        const char* pattern;
        const char* text;
    } const dates[] = {
        {"dd.mm.yyyy", "03.04.2024"}, {"DD.MM.YYYY", "03.04.2024"}, {"dd.mm.yy", "03.04.24"},
        {"mm-dd-yyyy", "04-03-2024"}, {"ddmmyy", "030424"},         {"d/m/yyyy", "3/4/2024"},
    };
    for (const char* name : {"en_US", "hr_HR", "ar_EG", "C"}) {
        UnderLocale locale(name);
        for (const auto& [pattern, text] : dates) {
            SCOPED_TRACE(std::string(name) + ": " + pattern);
            EXPECT_EQ(Utf8(Format(date, Text(pattern))), text);
            EXPECT_EQ(Utf8(Format(Value(date), Text(pattern))), text);
            EXPECT_EQ(Utf8(Format(Value(date).ToText(), Text(pattern))), text) << "from a list cell";
        }
        for (const auto& [time, text] : {std::pair(QTime(0, 5, 9), "00:05:09"), std::pair(QTime(14, 50, 0), "14:50:00"),
                                         std::pair(QTime(12, 0, 59), "12:00:59")}) {
            EXPECT_EQ(Utf8(Format(time, u"hh:mm:ss")), text);
            EXPECT_EQ(Utf8(Format(time, u"HH:MM:SS")), text);
            EXPECT_EQ(Utf8(Format(Value(time).ToText(), u"hh:mm:ss")), text) << "from a list cell";
        }
    }
    EXPECT_EQ(Format(QDate(2009, 12, 31), u"dd.mm.yy"), u"31.12.09");
    EXPECT_EQ(Format(QDate(), u"dd.mm.yyyy"), u"");
    EXPECT_EQ(Format(QTime(), u"hh:mm:ss"), u"");
}

TEST(Format, WhatFitsNoPatternStaysAsItComes) {
    UnderLocale locale("en_US");
    EXPECT_EQ(Format(Text("no date"), u"dd.mm.yy"), u"no date");
    EXPECT_EQ(Format(Text("03.04.2024"), u"dd.mm.yy"), u"03.04.2024");
    EXPECT_EQ(Format(Text("2/30/2024"), u"dd.mm.yy"), u"2/30/2024");
    EXPECT_EQ(Format(Text("25:00:00"), u"hh:mm:ss"), u"25:00:00");
    EXPECT_EQ(Format(Text(""), u"dd.mm.yy"), u"");
    EXPECT_EQ(Format(Value(QDate(2024, 4, 3)), u"0.00"), u"4/3/2024");
    EXPECT_EQ(Format(Value(QTime(14, 5, 9)), u"0.00"), u"2:05:09 PM");
    EXPECT_EQ(Format(Value(2.5), u"dd.mm.yy"), u"2.5");
    EXPECT_EQ(Format(Value(), u"0.00"), u"");
    EXPECT_EQ(Format(Value(true), u"0.00"), u"-1.00");
    EXPECT_EQ(Format(Value(false), u"0.00"), u"0.00");
    EXPECT_EQ(Format(Value(true), u""), u"True");
    EXPECT_EQ(Format(Value(42), u"000000"), u"000042");
    EXPECT_EQ(Format(Value(std::numeric_limits<qint64>::min()), u"0.00"), u"-9223372036854775808.00");
}
