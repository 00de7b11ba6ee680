#include "values/Locale.h"

#include <cstdio>
#include <cstdlib>

#include "UnderLocale.h"
#include "values/DateText.h"
#include "values/Format.h"

using namespace values;

namespace {

// Runs in a process of its own, since a process asks for the system's locale once.
[[noreturn]] void WriteAndExit() {
    const QString texts = Format(Money::FromWhole(-1284), u"#,##0.00") + u' ' + DateText(QDate(2024, 4, 3)) + u' ' +
                          TimeText(QTime(14, 5, 9));
    std::fputs(texts.toUtf8().constData(), stderr);
    std::exit(0);
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

TEST(Locale, GivesOneCharacterForEachSeparator) {
    struct {
        const char* name;
        char16_t decimal;
        char16_t group;
    } const locales[] = {{"en_US", u'.', u','},      {"hr_HR", u',', u'.'},      {"de_DE", u',', u'.'},
                         {"de_CH", u'.', u'\u2019'}, {"fr_FR", u',', u'\u202f'}, {"C", u'.', u','}};
    for (const auto& [name, decimal, group] : locales) {
        SCOPED_TRACE(name);
        UnderLocale locale(name);
        EXPECT_EQ(DecimalSeparatorChar(), decimal);
        EXPECT_EQ(GroupSeparatorChar(), group);
    }
}
