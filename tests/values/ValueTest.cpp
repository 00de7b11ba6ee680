#include "values/Value.h"

#include <cmath>

#include "UnderLocale.h"
#include "values/Clock.h"

using namespace values;

namespace {

Money M(qint64 units) {
    return Money::FromUnits(units);
}

// What each conversion gives, as a text, or the error that it throws.
struct Conversions {
    Value value;
    const char* text;
    const char* money;
    const char* number;
    const char* whole;
    const char* yes;
};

template <typename Convert>
std::string Outcome(Convert convert) {
    try {
        return Utf8(Value(convert()).ToText());
    } catch (const Error& error) {
        return "error " + std::to_string(error.Number());
    }
}

}  // namespace

TEST(Value, ConvertsByTheUsersLocaleOrSaysWhyNot) {
    UnderLocale locale("hr_HR");
    const Conversions table[] = {
        {Value(), "error 94", "error 94", "error 94", "error 94", "error 94"},
        {Value(Text("1.284,5")), "1.284,5", "1284,5", "1284,5", "1284", "True"},
        {Value(Text("9999999999994")), "9999999999994", "9999999999994", "9999999999994", "9999999999994", "True"},
        {Value(Text("9223372036854775807")), "9223372036854775807", "error 6", "9,22337203685478E+18",
         "9223372036854775807", "True"},
        {Value(Text("True")), "True", "error 13", "error 13", "error 13", "True"},
        {Value(Text("")), "", "error 13", "error 13", "error 13", "error 13"},
        {Value(42), "42", "42", "42", "42", "True"},
        {Value(qint64{922337203685478}), "922337203685478", "error 6", "922337203685478", "922337203685478", "True"},
        {Value(M(13000)), "1,3", "1,3", "1,3", "1", "True"},
        {Value(M(25000)), "2,5", "2,5", "2,5", "2", "True"},
        {Value(M(-35000)), "-3,5", "-3,5", "-3,5", "-4", "True"},
        {Value(M(0)), "0", "0", "0", "0", "False"},
        {Value(2.5), "2,5", "2,5", "2,5", "2", "True"},
        {Value(0.1 + 0.2), "0,3", "0,3", "0,3", "0", "True"},
        {Value(1e19), "1E+19", "error 6", "1E+19", "error 6", "True"},
        {Value(QDate(2024, 4, 3)), "03. 04. 2024.", "error 13", "error 13", "error 13", "error 13"},
        {Value(QTime(14, 5, 9)), "14:05:09", "error 13", "error 13", "error 13", "error 13"},
        {Value(true), "True", "-1", "-1", "-1", "True"},
        {Value(false), "False", "0", "0", "0", "False"},
    };
    for (const auto& [value, text, money, number, whole, yes] : table) {
        SCOPED_TRACE(text);
        EXPECT_EQ(Outcome([&] { return value.ToText(); }), text);
        EXPECT_EQ(Outcome([&] { return value.ToMoney(); }), money);
        EXPECT_EQ(Outcome([&] { return value.ToDouble(); }), number);
        EXPECT_EQ(Outcome([&] { return value.ToWhole(); }), whole);
        EXPECT_EQ(Outcome([&] { return value.ToBool(); }), yes);
    }
    EXPECT_EQ(Value().TextOrEmpty(), u"");
    EXPECT_EQ(Value(M(13000)).TextOrEmpty(), u"1,3");
}

TEST(Value, DatesAndTimesComeFromTheirOwnKindOrFromATextInTheUsersForm) {
    UnderLocale locale("de_DE");
    EXPECT_EQ(Value(QDate(2024, 4, 3)).ToDate(), QDate(2024, 4, 3));
    EXPECT_EQ(Value(Text("03.04.2024")).ToDate(), QDate(2024, 4, 3));
    EXPECT_EQ(Value(Text("14:05:09")).ToTime(), QTime(14, 5, 9));
    for (const Value& value : {Value(Text("4/3/2024")), Value(42), Value(2.5), Value(true)}) {
        EXPECT_EQ(ErrorOf([&] { return value.ToDate(); }), TypeMismatch);
        EXPECT_EQ(ErrorOf([&] { return value.ToTime(); }), TypeMismatch);
    }
    EXPECT_EQ(ErrorOf([] { return Value(QTime(1, 2, 3)).ToDate(); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { return Value(QDate(2024, 4, 3)).ToTime(); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { return Value().ToDate(); }), InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([] { return Value().ToTime(); }), InvalidUseOfNull);
}

TEST(Value, KeepsTheKindThatItWasGiven) {
    EXPECT_EQ(Value().GetKind(), Value::Kind::Null);
    EXPECT_EQ(Value(Text("1")).GetKind(), Value::Kind::Text);
    EXPECT_EQ(Value(qint16{1}).GetKind(), Value::Kind::Whole);
    EXPECT_EQ(Value(M(1)).GetKind(), Value::Kind::Money);
    EXPECT_EQ(Value(1.0).GetKind(), Value::Kind::Double);
    EXPECT_EQ(Value(QDate(2024, 4, 3)).GetKind(), Value::Kind::Date);
    EXPECT_EQ(Value(QTime(1, 2)).GetKind(), Value::Kind::Time);
    EXPECT_EQ(Value(true).GetKind(), Value::Kind::YesNo);
    EXPECT_FALSE(Value(1) == Value(true));
    EXPECT_FALSE(Value(Text("")) == Value());
}

TEST(Error, TellsNumberAndDescription) {
    const Error error(3022, Text("Šifra postoji."));
    EXPECT_STREQ(error.what(), "3022: Šifra postoji.");
    EXPECT_FALSE(error.EndsProgram());
}

TEST(Clock, GivesWhatIsSetAndTheSystemsTimeAfterwards) {
    const QDateTime moment(QDate(2024, 12, 31), QTime(23, 59, 59, 987));
    SetClock([moment] { return moment; });
    EXPECT_EQ(Now(), moment);
    EXPECT_EQ(Today(), QDate(2024, 12, 31));
    EXPECT_EQ(TimeNow(), QTime(23, 59, 59));
    SetClock({});
    EXPECT_LT(std::abs(Now().secsTo(QDateTime::currentDateTime())), 5);
}
