#include "values/LineAmount.h"

#include "UnderLocale.h"
#include "values/Format.h"
#include "values/Money.h"
#include "values/Numbers.h"
#include "values/Tax.h"

using namespace values;

namespace {

Money M(const char* text) {
    return CMoney(Text(text));
}

QString Shown(double amount) {
    return Format(amount, u"0.00");
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
        EXPECT_EQ(Utf8(Shown(NewLineAmount(M(price), M(quantity)))), newLine);
        EXPECT_EQ(Utf8(Shown(MergeLines(M(quantity), Money(), CDouble(Text(price)), 0).amount)), merged);
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
        EXPECT_EQ(Utf8(Format(ContainedTax(M(amount), CDouble(Text(percent))), u"0.00")), tax);
        EXPECT_EQ(Utf8(Shown(MergeLines(M("1"), Money(), CDouble(Text(amount)), CDouble(Text(percent))).tax)), tax);
        EXPECT_EQ(Shown(PriceWithoutTax(M(amount), CDouble(Text(percent)))), Format(M(amount) - M(tax), u"0.00"));
    }
    EXPECT_EQ(Shown(PriceWithoutTax(M("1000"), 5.555)), u"947.33") << "and not .37: 1.05555 is money too, 1.0556";
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
    for (const auto& [typed, quantity] : quantities)
        EXPECT_EQ(Utf8(NumberText(CutQuantity(M(typed)))), quantity) << typed;
    EXPECT_EQ(ErrorOf([] { return CutQuantity(M("900000000000000")); }), Overflow);
}

TEST(LineAmount, SumsAreOfTheTextsAsShown) {
    UnderLocale locale("hr_HR");
    double total = 0;
    for (int line = 0; line < 3; ++line) total = AddToSum(total, CMoney(Shown(0.335)));
    EXPECT_EQ(Shown(total), u"1,02") << "and not 1,01";
}
