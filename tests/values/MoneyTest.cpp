#include "values/Money.h"

#include <cmath>
#include <limits>

#include "UnderLocale.h"
#include "values/Numbers.h"

using values::CMoney;
using values::Money;
using values::NumberText;

namespace {

constexpr const char* Largest = "922337203685477.5807";
constexpr const char* Smallest = "-922337203685477.5808";

Money M(const char* text) {
    return CMoney(Text(text));
}

struct Product {
    const char* a;
    const char* b;
    const char* product;
};

struct FromDouble {
    double number;
    const char* money;
};

}  // namespace

TEST(Money, ProductsRoundHalfToEvenAtTheFourthDecimal) {
    UnderLocale locale("en_US");
    const Product products[] = {
        {"2.50", "3", "7.5"},
        {"0.0001", "0.5", "0"},          // 0.00005: half, 0 is even
        {"0.0003", "0.5", "0.0002"},     // 0.00015: half, to 2
        {"0.0005", "0.5", "0.0002"},     // 0.00025: half, stays at 2
        {"0.0003", "0.5001", "0.0002"},  // above half
        {"0.0005", "0.4999", "0.0002"},
        {"-0.0003", "0.5", "-0.0002"},
        {"-0.0005", "0.5", "-0.0002"},
        {"-0.0005", "-0.5", "0.0002"},
        {"1.2345", "1.234", "1.5234"},  // 1.523373
        {"0.99", "1.005", "0.995"},     // 0.99495: half, 9949 is odd
        {"30000000", "30000000", "900000000000000"},
        {Largest, "1", Largest},
        {Smallest, "1", Smallest},
        {"0", Smallest, "0"},
    };
    for (const auto& [a, b, product] : products) {
        SCOPED_TRACE(std::string(a) + " * " + b);
        EXPECT_EQ(Utf8(NumberText(M(a) * M(b))), product);
        EXPECT_EQ(M(b) * M(a), M(a) * M(b));
    }
}

TEST(Money, WhatLeavesTheRangeIsAnOverflow) {
    UnderLocale locale("en_US");
    const Money largest = M(Largest);
    const Money smallest = M(Smallest);
    const Money unit = Money::FromUnits(1);
    EXPECT_EQ(largest.Units(), std::numeric_limits<qint64>::max());
    EXPECT_EQ(smallest.Units(), std::numeric_limits<qint64>::min());

    EXPECT_EQ(ErrorOf([&] { return largest + unit; }), values::Overflow);
    EXPECT_EQ(ErrorOf([&] { return smallest - unit; }), values::Overflow);
    EXPECT_EQ(ErrorOf([&] { return -smallest; }), values::Overflow);
    EXPECT_EQ(ErrorOf([&] { return smallest * M("-1"); }), values::Overflow);
    EXPECT_EQ(ErrorOf([&] { return largest * M("1.0001"); }), values::Overflow);
    EXPECT_EQ(ErrorOf([&] { return M("40000000") * M("40000000"); }), values::Overflow);
    EXPECT_EQ(ErrorOf([&] { return Money::FromWhole(922337203685478); }), values::Overflow);
    EXPECT_EQ(ErrorOf([&] { return Money::FromWhole(-922337203685478); }), values::Overflow);

    EXPECT_EQ(Utf8(NumberText(-largest)), "-922337203685477.5807");
    EXPECT_EQ((largest + smallest).Units(), -1);
    EXPECT_EQ(Money::FromWhole(922337203685477).Units(), 9223372036854770000);
    Money sum = largest;
    EXPECT_EQ(ErrorOf([&] { sum += unit; }), values::Overflow);
    EXPECT_EQ(sum, largest) << "a failed addition leaves the sum as it was";
}

TEST(Money, ADoubleIsTakenAtFifteenDigits) {
    UnderLocale locale("en_US");
    const FromDouble numbers[] = {
        {1.005, "1.005"},
        {0.1 + 0.2, "0.3"},
        {-0.00005, "0"},
        {0.00015, "0.0002"},
        {0.00025, "0.0002"},
        {-0.00035, "-0.0004"},
        {1.00005, "1"},
        {1.000050001, "1.0001"},
        {2.00015, "2.0002"},
        {123456789012.34565, "123456789012.346"},  // fifteen digits end at the third decimal
        {922337203685477.0, "922337203685477"},
        {1e-300, "0"},
        {-0.0, "0"},
    };
    for (const auto& [number, money] : numbers) {
        SCOPED_TRACE(number);
        EXPECT_EQ(Utf8(NumberText(Money::FromDouble(number))), money);
    }
    for (const double number :
         {922337203685478.0, -922337203685478.0, 1e300, static_cast<double>(INFINITY), static_cast<double>(NAN)})
        EXPECT_EQ(ErrorOf([&] { return Money::FromDouble(number); }), values::Overflow) << number;
}

TEST(Money, ComparesByItsValue) {
    UnderLocale locale("en_US");
    EXPECT_LT(M("-0.0001"), M("0"));
    EXPECT_GT(M("10"), M("9.9999"));
    EXPECT_EQ(M("1.50"), M("1.5"));
    EXPECT_EQ(M("-2.675").ToDouble(), -2.675);
}
