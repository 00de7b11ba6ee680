// The arithmetic of an invoice line with the room's own functions, from text to text as a screen does it.
#include <cmath>

#include "UnderLocale.h"
#include "values/Format.h"
#include "values/Money.h"
#include "values/Numbers.h"

using namespace values;

namespace {

QString NewLineAmount(const char* price, const char* quantity) {
    return Format((CMoney(Text(price)) * CMoney(Text(quantity))).ToDouble(), u"0.00");
}

QString MergedAmount(const char* price, const char* quantity) {
    return Format(CDouble(Text(price)) * CMoney(Text(quantity)).ToDouble(), u"0.00");
}

QString TaxInside(const char* amount, const char* percent) {
    const double net = CDouble(Text(amount)) / (1 + CDouble(Text(percent)) / 100);
    return Format(CMoney(Text(amount)) - Money::FromDouble(net), u"0.00");
}

QString CutQuantity(const char* typed) {
    return NumberText(std::floor((CMoney(Text(typed)) * Money::FromWhole(1000)).ToDouble()) / 1000);
}

}  // namespace

TEST(LineAmount, IsRoundedTwiceOnANewLineAndOnceOnAMergedOne) {
    struct {
        const char* price;
        const char* quantity;
        const char* newLine;
        const char* merged;
    } const lines[] = {
        {"1.50", "2", "3.00", "3.00"},
        {"2.675", "1", "2.68", "2.68"},
        {"-1.15", "1.5", "-1.73", "-1.73"},
        // 0.54495: at four decimals, half to even, it is 0.5450 and rounds up; the double rounds down at once.
        {"3.15", "0.173", "0.55", "0.54"},
        {"3.15", "-0.173", "-0.55", "-0.54"},
        {"0.01", "0.4950", "0.01", "0.00"},
        {"99.99", "0.333", "33.30", "33.30"},
    };
    UnderLocale locale("en_US");
    for (const auto& [price, quantity, newLine, merged] : lines) {
        SCOPED_TRACE(std::string(price) + " * " + quantity);
        EXPECT_EQ(Utf8(NewLineAmount(price, quantity)), newLine);
        EXPECT_EQ(Utf8(MergedAmount(price, quantity)), merged);
    }
}

TEST(LineAmount, ContainsItsTax) {
    struct {
        const char* amount;
        const char* percent;
        const char* tax;
    } const lines[] = {
        {"117.00", "17", "17.00"}, {"1.00", "17", "0.15"},
        {"10.00", "17", "1.45"},   {"3.00", "0", "0.00"},
        {"0.01", "17", "0.00"},    {"-117.00", "17", "-17.00"},
        {"0.00", "17", "0.00"},    {"125.00", "25.00", "25.00"},
        {"99.99", "7.7", "7.15"},  {"1000000.00", "17", "145299.15"},
    };
    UnderLocale locale("en_US");
    for (const auto& [amount, percent, tax] : lines) {
        SCOPED_TRACE(std::string(amount) + " at " + percent);
        EXPECT_EQ(Utf8(TaxInside(amount, percent)), tax);
    }
}

TEST(LineAmount, QuantitiesAreCutToThreeDecimalsByFloor) {
    struct {
        const char* typed;
        const char* quantity;
    } const quantities[] = {
        {"1.2345", "1.234"}, {"-1.2345", "-1.235"}, {"1.234", "1.234"}, {"-1.234", "-1.234"},
        {"0.0009", "0"},     {"-0.0001", "-0.001"}, {"0.1", "0.1"},     {"4.35", "4.35"},
        {"1.0000", "1"},     {"16.001", "16.001"},  {"8.2", "8.2"},
    };
    UnderLocale locale("en_US");
    for (const auto& [typed, quantity] : quantities) EXPECT_EQ(Utf8(CutQuantity(typed)), quantity) << typed;
    EXPECT_EQ(ErrorOf([] { return CutQuantity("999999999999999"); }), Overflow);
}

TEST(LineAmount, SumsAreOfTheTextsAsShown) {
    UnderLocale locale("hr_HR");
    Money total;
    for (int line = 0; line < 3; ++line) total += CMoney(Format(0.335, u"0.00"));
    EXPECT_EQ(Format(total.ToDouble(), u"0.00"), u"1,02");
    EXPECT_EQ(Format(Money::FromDouble(0.335) * Money::FromWhole(3), u"0.00"), u"1,01");
}
