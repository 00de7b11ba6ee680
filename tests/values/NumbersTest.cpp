#include "values/Numbers.h"

#include <cmath>

#include "UnderLocale.h"

using namespace values;

namespace {

struct Read {
    const char* locale;
    const char* text;
    const char* money;  // as NumberText writes it in the C locale; null where the text is no number
};

std::string AsWrittenInC(Money money) {
    UnderLocale locale(QLocale::c());
    return Utf8(NumberText(money));
}

}  // namespace

TEST(Numbers, TextsAreReadByTheRulesOfTheUsersLocale) {
    const Read texts[] = {
        {"en_US", "1.5", "1.5"},
        {"en_US", " 1.50 ", "1.5"},
        {"en_US", "\t7", "7"},
        {"en_US", "-1.5", "-1.5"},
        {"en_US", "+1.5", "1.5"},
        {"en_US", ".5", "0.5"},
        {"en_US", "-.5", "-0.5"},
        {"en_US", "5.", "5"},
        {"en_US", "007", "7"},
        {"en_US", "0.0", "0"},
        {"en_US", "1e3", "1000"},
        {"en_US", "1E+3", "1000"},
        {"en_US", "125e-2", "1.25"},
        {"en_US", ".5e1", "5"},
        {"en_US", "0e999999999999999999999", "0"},
        {"en_US", "1e-999999999999999999999", "0"},
        {"en_US", "1,234.50", "1234.5"},
        {"en_US", "1,234,567", "1234567"},
        {"en_US", "-12,345", "-12345"},
        {"en_US", "12,5", nullptr},
        {"en_US", "1,2345", nullptr},
        {"en_US", "1234,567", nullptr},
        {"en_US", "0,125", nullptr},
        {"en_US", ",125", nullptr},
        {"en_US", "1,,234", nullptr},
        {"en_US", "1,234,", nullptr},
        {"en_US", "1,23.4", nullptr},
        {"en_US", "1.234,567", nullptr},
        {"en_US", "1.2.3", nullptr},
        {"en_US", "1 234", nullptr},
        {"en_US", "", nullptr},
        {"en_US", " ", nullptr},
        {"en_US", ".", nullptr},
        {"en_US", "-", nullptr},
        {"en_US", "-.", nullptr},
        {"en_US", "--1", nullptr},
        {"en_US", "- 1", nullptr},
        {"en_US", "1-", nullptr},
        {"en_US", "(1)", nullptr},
        {"en_US", "$1", nullptr},
        {"en_US", "1 KM", nullptr},
        {"en_US", "12A", nullptr},
        {"en_US", "1e", nullptr},
        {"en_US", "1e+", nullptr},
        {"en_US", "1e2.5", nullptr},
        {"en_US", "e3", nullptr},
        {"en_US", "&H10", nullptr},
        {"en_US", "inf", nullptr},
        {"en_US", "nan", nullptr},
        {"en_US", "١٢", nullptr},
        {"en_US", "−5", nullptr},

        {"hr_HR", "1,5", "1.5"},
        {"hr_HR", "-1.284,55", "-1284.55"},
        {"hr_HR", "1.284", "1284"},
        {"hr_HR", "1.5", nullptr},
        {"hr_HR", "1.50", nullptr},
        {"hr_HR", "1,5,5", nullptr},
        {"hr_HR", "1,284.55", nullptr},
        {"de_DE", "1.284,55", "1284.55"},
        {"de_DE", "12.5", nullptr},
        {"bs_BA", "922.337.203.685.477,5807", "922337203685477.5807"},
        {"de_CH", "1’284.55", "1284.55"},
        {"de_CH", "1'284.55", "1284.55"},
        {"de_CH", "1’28.55", nullptr},
        {"fr_FR", "1\u202f284,55", "1284.55"},
        {"fr_FR", "1\u00a0284,55", "1284.55"},
        {"fr_FR", "1 284,55", "1284.55"},
        {"fr_FR", "1  284,55", nullptr},
        {"fr_FR", "12 84", nullptr},
        {"C", "1.5", "1.5"},
        {"C", "1,284.55", "1284.55"},

        // Digits beyond the fourth decimal, never through a double.
        {"en_US", "0.00005", "0"},
        {"en_US", "0.00015", "0.0002"},
        {"en_US", "-0.00025", "-0.0002"},
        {"en_US", "0.000250000000000000000001", "0.0003"},
        {"en_US", "1.23454999999999999999", "1.2345"},
        {"en_US", "900719925474099.3001", "900719925474099.3001"},
        {"en_US", "922337203685477.58074999", "922337203685477.5807"},
        {"en_US", "-922337203685477.5808", "-922337203685477.5808"},
        {"en_US", "000000000000000000000000000000001.5000000000000000000000000000000", "1.5"},
    };
    for (const auto& [name, text, money] : texts) {
        SCOPED_TRACE(std::string(name) + ": \"" + text + '"');
        UnderLocale locale(name);
        EXPECT_EQ(IsNumeric(Text(text)), money != nullptr);
        if (money) {
            EXPECT_EQ(AsWrittenInC(CMoney(Text(text))), money);
        } else {
            EXPECT_EQ(ErrorOf([&] { return CMoney(Text(text)); }), TypeMismatch);
            EXPECT_EQ(ErrorOf([&] { return CDouble(Text(text)); }), TypeMismatch);
        }
    }
}

TEST(Numbers, TooLargeForMoneyIsAnOverflow) {
    UnderLocale locale("en_US");
    for (const char* text : {"922337203685477.5808", "-922337203685477.5809", "922337203685477.58075", "1e15",
                             "99999999999999999999999999999999999999", "1e999999999999999999999"})
        EXPECT_EQ(ErrorOf([&] { return CMoney(Text(text)); }), Overflow) << text;
}

TEST(Numbers, DoublesAreReadToTheNearest) {
    UnderLocale locale("hr_HR");
    EXPECT_EQ(CDouble(u"1.284,55"), 1284.55);
    EXPECT_EQ(CDouble(u"-0,1"), -0.1);
    EXPECT_EQ(CDouble(u"0,000000000000000000000000000001"), 1e-30);
    EXPECT_EQ(CDouble(u"12345678901234567890"), 12345678901234567890.0);
    EXPECT_EQ(CDouble(u"1e-999"), 0);
    EXPECT_EQ(CDouble(u"0"), 0);
    EXPECT_EQ(ErrorOf([] { return CDouble(u"1e309"); }), Overflow);
}

TEST(Numbers, ValReadsTheFrontOfATextWhateverTheLocale) {
    struct {
        const char* text;
        double number;
    } const texts[] = {
        {"12A", 12},      {"  \t12", 12},  {"1.5", 1.5},   {"1,5", 1},     {".5", 0.5}, {"-.5x", -0.5},
        {"5.", 5},        {"+7", 7},       {"-3 4", -3},   {"1.2.3", 1.2}, {"1E", 1},   {"1E+", 1},
        {"1E2", 100},     {"1e-2x", 0.01}, {"1e2.5", 100}, {"", 0},        {"-", 0},    {".", 0},
        {"-.", 0},        {"A12", 0},      {"&H10", 0},    {"--1", 0},     {"- 1", 0},  {"E5", 0},
        {"0000123", 123}, {"1e-999", 0},   {"inf", 0},     {"١٢", 0},
    };
    for (const char* name : {"en_US", "hr_HR", "de_CH"}) {
        UnderLocale locale(name);
        for (const auto& [text, number] : texts) {
            SCOPED_TRACE(std::string(name) + ": \"" + text + '"');
            EXPECT_EQ(Val(Text(text)), number);
        }
    }
    EXPECT_EQ(ErrorOf([] { return Val(u"1e999"); }), Overflow);
}

TEST(Numbers, BooleansAreWordsOrNumbers) {
    UnderLocale locale("hr_HR");
    for (const char* text : {"True", "TRUE", " true ", "1", "-1", "0,5"}) EXPECT_TRUE(CBool(Text(text))) << text;
    for (const char* text : {"False", "fALSE", "0", "0,00", "-0"}) EXPECT_FALSE(CBool(Text(text))) << text;
    for (const char* text : {"", "yes", "T", "0.5", "True1"})
        EXPECT_EQ(ErrorOf([&] { return CBool(Text(text)); }), TypeMismatch) << text;
}

TEST(Numbers, IntegersRoundHalvesToEvenWithinTheirRange) {
    struct {
        double number;
        int integer;
    } const numbers[] = {{0.5, 0},  {1.5, 2},  {2.5, 2},         {-0.5, 0},          {-1.5, -2},        {-2.5, -2},
                         {2.51, 3}, {2.49, 2}, {32767.4, 32767}, {-32768.5, -32768}, {-32767.6, -32768}};
    for (const auto& [number, integer] : numbers) {
        EXPECT_EQ(CInt16(number), integer) << number;
        EXPECT_EQ(CInt32(number), integer) << number;
    }
    EXPECT_EQ(CInt32(2147483647.4), 2147483647);
    EXPECT_EQ(CInt32(-2147483648.5), std::numeric_limits<qint32>::min());
    for (const double number : {32767.5, -32769.0, 1e20, static_cast<double>(NAN)})
        EXPECT_EQ(ErrorOf([&] { return CInt16(number); }), Overflow) << number;
    for (const double number : {2147483647.5, -2147483649.0, 1e20, static_cast<double>(INFINITY)})
        EXPECT_EQ(ErrorOf([&] { return CInt32(number); }), Overflow) << number;
}

TEST(Numbers, GeneralTextHasNoGroupsAndNoNeedlessZeros) {
    struct {
        double number;
        const char* text;
    } const numbers[] = {
        {0, "0"},
        {-0.0, "0"},
        {3, "3"},
        {-1.5, "-1,5"},
        {1284.55, "1284,55"},
        {0.1 + 0.2, "0,3"},
        {1.0 / 3, "0,333333333333333"},
        {2.0 / 3, "0,666666666666667"},
        {0.0001, "0,0001"},
        {0.00001, "1E-05"},
        {-0.000012, "-1,2E-05"},
        {123456789012345, "123456789012345"},
        {999999999999999, "999999999999999"},
        {999999999999999.9, "1E+15"},
        {1.5e100, "1,5E+100"},
    };
    UnderLocale locale("hr_HR");
    for (const auto& [number, text] : numbers) EXPECT_EQ(Utf8(NumberText(number)), text);
    EXPECT_EQ(ErrorOf([] { return NumberText(std::nan("")); }), Overflow);

    EXPECT_EQ(NumberText(Money::FromUnits(13000)), u"1,3");
    EXPECT_EQ(NumberText(Money::FromUnits(-1)), u"-0,0001");
    EXPECT_EQ(NumberText(Money::FromUnits(0)), u"0");
    EXPECT_EQ(NumberText(Money::FromUnits(-500000)), u"-50");
    EXPECT_EQ(NumberText(Money::FromUnits(std::numeric_limits<qint64>::min())), u"-922337203685477,5808");
    EXPECT_EQ(NumberText(std::numeric_limits<qint64>::min()), u"-9223372036854775808");
}

TEST(Numbers, WhatIsWrittenIsReadBackInEveryLocale) {
    const qint64 units[] = {0,
                            1,
                            -1,
                            9999,
                            10000,
                            -12845500,
                            123456789,
                            std::numeric_limits<qint64>::max(),
                            std::numeric_limits<qint64>::min()};
    for (const auto& each : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        UnderLocale locale(each);
        for (const qint64 unit : units) {
            const QString text = NumberText(Money::FromUnits(unit));
            ASSERT_EQ(CMoney(text).Units(), unit) << each.name().toStdString() << " " << Utf8(text);
        }
    }
}
