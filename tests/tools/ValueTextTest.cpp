#include "upkeep/ValueText.h"

#include <gtest/gtest.h>

#include "store/StoreError.h"

using namespace Qt::StringLiterals;
using store::Type;
using upkeep::ReadValue;
using upkeep::WriteValue;
using values::Money;
using values::Value;

namespace {

struct Pair {
    Value value;
    Type type;
    QByteArray cell;
};

const QList<Pair>& Pairs() {
    static const QList<Pair> pairs{
        {Value(), Type::Money, ""},
        {Value(u"Čaj"_s), Type::Text, "Čaj"},
        {Value(u" "_s), Type::Text, " "},
        {Value(u"a\tb\nc\rd\\n"_s), Type::Text, "a\\tb\\nc\\rd\\\\n"},
        {Value(QString(u'x') + QChar(u'\0') + u'y'), Type::Text, "x\\0y"},
        {Value(u"\uFEFFmark"_s), Type::Text, "\xEF\xBB\xBFmark"},
        {Value(-12), Type::Whole, "-12"},
        {Value(std::numeric_limits<qint64>::min()), Type::Whole, "-9223372036854775808"},
        {Value(Money::FromUnits(0)), Type::Money, "0"},
        {Value(Money::FromUnits(11500)), Type::Money, "1.15"},
        {Value(Money::FromUnits(-5)), Type::Quantity, "-0.0005"},
        {Value(Money::FromUnits(10'000'000)), Type::Decimal, "1000"},
        {Value(Money::FromUnits(std::numeric_limits<qint64>::min())), Type::Money, "-922337203685477.5808"},
        {Value(Money::FromUnits(std::numeric_limits<qint64>::max())), Type::Money, "922337203685477.5807"},
        {Value(0.1 + 0.2), Type::Double, "0.3"},
        {Value(1e20), Type::Double, "100000000000000000000"},
        {Value(-0.0), Type::Double, "0"},
        {Value(QDate(2024, 2, 29)), Type::Date, "2024-02-29"},
        {Value(QTime(23, 5, 9)), Type::Time, "23:05:09"},
        {Value(true), Type::YesNo, "True"},
        {Value(false), Type::YesNo, "False"},
    };
    return pairs;
}

}  // namespace

TEST(ValueText, WritesEveryKindInItsOneForm) {
    for (const Pair& pair : Pairs()) EXPECT_EQ(WriteValue(pair.value), pair.cell);
}

TEST(ValueText, ReadsWhatItWrites) {
    for (const Pair& pair : Pairs()) {
        const Value read = ReadValue(pair.cell, pair.type);
        EXPECT_EQ(WriteValue(read), pair.cell);
        // The sum of two doubles comes back as the number that it shows.
        EXPECT_TRUE(read == pair.value || pair.type == Type::Double) << pair.cell.constData();
    }
}

TEST(ValueText, RefusesWhatIsNotExactlyOfTheForm) {
    const QList<std::pair<Type, QByteArrayList>> bad{
        {Type::Text, {"a\\", "\\x41", "\\N", "\xFF", "\xC4", "\xED\xA0\x80"}},
        {Type::Whole, {"1.0", "1,5", "+1", " 1", "1 ", "0x1", "abc", "9223372036854775808", "-", "\u0661"}},
        {Type::Money, {"1,15", "1.", ".5", "1.23456", "1e3", "1 000", "922337203685477.5808", "--1", "1.2.3", "1\n"}},
        {Type::Double, {"nan", "inf", "1e5", "1,5", "0x1p3"}},
        {Type::Date, {"2023-02-29", "29.02.2024", "2024-2-9", "2024-02-29 ", "24-02-29", "02-29-2024", "2024-13-01"}},
        {Type::Time, {"24:00:00", "9:05:00", "09:05", "09:05:00.5", "09:60:00", "9:05:00 PM"}},
        {Type::YesNo, {"yes", "1", "-1", "0", "Tru"}},
    };
    for (const auto& [type, cells] : bad)
        for (const QByteArray& cell : cells) try {
                ReadValue(cell, type);
                ADD_FAILURE() << "took " << cell.constData();
            } catch (const store::StoreError& error) {
                EXPECT_EQ(error.Number(), store::ConversionFailed) << cell.constData();
            }
}
