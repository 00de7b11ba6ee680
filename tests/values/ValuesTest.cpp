#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <limits>

#include "support/UnderLocale.h"
#include "values/Clock.h"
#include "values/DateText.h"
#include "values/Error.h"
#include "values/Format.h"
#include "values/LineAmount.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using namespace values;

namespace {

// Runs in a process of its own, since a process asks for the system's locale once.
[[noreturn]] void WriteAndExit() {
    const QString texts = Format(Money::FromWhole(-1284), u"#,##0.00") + u' ' + DateText(QDate(2024, 4, 3)) + u' ' +
                          TimeText(QTime(14, 5, 9));
    std::fputs(texts.toUtf8().constData(), stderr);
    std::exit(0);
}

bool HasOnlyPlainCharacters(const QString& text) {
    return std::ranges::none_of(text, [](QChar c) {
        return (c.isDigit() && c > u'9') || (c.isSpace() && c != u' ') || c.category() == QChar::Other_Format;
    });
}

template <typename Check>
void UnderEveryLocale(Check check) {
    for (const auto& each : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        SCOPED_TRACE(each.name().toStdString());
        const UnderLocale locale(each);
        check();
        if (testing::Test::HasFailure()) return;
    }
}

}  // namespace

TEST(LocaleDeathTest, IsTheOneOfTheEnvironmentWhetherInstalledOrNot) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const QByteArray before = qgetenv("LC_ALL");
    for (const auto& [name, texts] : {std::pair("hr_HR.UTF-8", "^-1\\.284,00 03\\. 04\\. 2024\\. 14:05:09$"),
                                      std::pair("de_DE.UTF-8", "^-1\\.284,00 03\\.04\\.2024 14:05:09$"),
                                      std::pair("en_US.UTF-8", "^-1,284\\.00 4/3/2024 2:05:09 PM$"),
                                      std::pair("C", "^-1,284\\.00 3 Apr 2024 14:05:09$")}) {
        SCOPED_TRACE(name);
        qputenv("LC_ALL", name);
        EXPECT_EXIT(WriteAndExit(), testing::ExitedWithCode(0), texts);
    }
    qputenv("LC_ALL", before);
}

TEST(Locale, EveryDateAndTimeIsReadBackInEveryOne) {
    UnderEveryLocale([] {
        for (QDate date(1930, 1, 1); date.year() < 2110; date = date.addDays(97)) {
            const QString text = DateText(date);
            ASSERT_EQ(ReadDate(text), date) << text.toStdString();
            ASSERT_TRUE(HasOnlyPlainCharacters(text)) << text.toStdString();
        }
        for (int second = 0; second < 24 * 3600; second += second % 43'200 == 0 ? 1 : 1777) {
            const QTime time = QTime(0, 0).addSecs(second);
            ASSERT_EQ(ReadTime(TimeText(time)), time) << TimeText(time).toStdString();
            ASSERT_TRUE(HasOnlyPlainCharacters(TimeText(time))) << TimeText(time).toStdString();
        }
    });
    for (const auto& name : {u"en_US"_s, u"hr_HR"_s, u"de_DE"_s, u"fr_FR"_s, u"bs_BA"_s, u"sr_RS"_s, u"sl_SI"_s}) {
        const UnderLocale locale{QLocale(name)};
        for (QDate date(2023, 1, 1); date.year() < 2027; date = date.addDays(1))
            ASSERT_EQ(ReadDate(DateText(date)), date);
    }
}

TEST(Locale, EveryAmountIsReadBackInEveryOne) {
    constexpr auto most = std::numeric_limits<qint64>::max();
    UnderEveryLocale([] {
        for (const qint64 units : {0LL, 1LL, -1LL, 9999LL, -12845500LL, 123456789LL, most, -most - 1}) {
            const Money money = Money::FromUnits(units), shown = Money::FromUnits(units / 100 * 100);
            ASSERT_EQ(CMoney(NumberText(money)), money) << NumberText(money).toStdString();
            ASSERT_EQ(CMoney(Format(shown, u"###,###,##0.00")), shown) << NumberText(shown).toStdString();
        }
    });
}

TEST(Money, AFailedAdditionLeavesTheSumAsItWas) {
    Money sum = Money::FromUnits(std::numeric_limits<qint64>::max());
    EXPECT_THROW(sum += Money::FromUnits(1), Error);
    EXPECT_EQ(sum.Units(), std::numeric_limits<qint64>::max());
    EXPECT_EQ(Money::FromUnits(-26750).ToDouble(), -2.675);
}

TEST(LineAmount, SumsAreOfTheTextsAsShown) {
    double total = 0;
    for (int line = 0; line < 3; ++line) total = AddToSum(total, CMoney(Format(0.335, u"0.00")));
    EXPECT_EQ(total, 1.02) << "and not 1.01";
}

TEST(Error, TellsNumberAndDescription) {
    EXPECT_STREQ(Error(3022, u"Šifra postoji."_s).what(), "3022: Šifra postoji.");
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
