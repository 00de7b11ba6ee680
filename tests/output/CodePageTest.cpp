#include "output/CodePage.h"

#include <gtest/gtest.h>

#include "values/Locale.h"

using namespace Qt::StringLiterals;
using namespace output;

namespace {

QByteArray ToCodePage(QStringView text) {
    QByteArray bytes;
    AppendInCodePage(bytes, text);
    return bytes;
}

struct Case {
    const char* locale;
    QString text;
    QByteArray bytes;
};

TEST(CodePage, FollowsTheLanguageOfTheUser) {
    const Case cases[] = {
        {"hr_HR", u"čćžšđ ČĆŽŠĐ €"_s, "\xE8\xE6\x9E\x9A\xF0 \xC8\xC6\x8E\x8A\xD0 \x80"_ba},
        {"bs_BA", u"šećer"_s, "\x9A\x65\xE6\x65\x72"_ba},
        {"sr_Latn_ME", u"šećer"_s, "\x9A\x65\xE6\x65\x72"_ba},
        {"sl_SI", u"čaj"_s, "\xE8\x61\x6A"_ba},
        {"hu_HU", u"őű"_s, "\xF5\xFB"_ba},
        {"sr_Cyrl_RS", u"ш"_s, "?"_ba},
        {"en_US", u"šž čćđ é €"_s, "\x9A\x9E ??? \xE9 \x80"_ba},
        {"de_DE", u"äöüß ñ"_s, "\xE4\xF6\xFC\xDF \xF1"_ba},
    };
    for (const auto& [locale, text, bytes] : cases) {
        values::SetUserLocale(QLocale(QLatin1StringView(locale)));
        EXPECT_EQ(ToCodePage(text).toHex(' '), bytes.toHex(' ')) << locale;
        if (!bytes.contains('?')) {
            EXPECT_EQ(FromCodePage(bytes), text) << locale;
        }
    }
}

TEST(CodePage, KnowsTheLatinLettersOfTheRegionHoweverTheyAreSpelled) {
    for (const QString& locale : {u"sr_RS@latin"_s, u"sr_RS.utf8@latin"_s, u"sr_RS.UTF-8@latin"_s,
                                  u"sr_Latn_RS.UTF-8"_s, u"sr-Latn"_s, u"sr_ME"_s, u"sr_BA@ijekavianlatin"_s,
                                  u"bs_BA"_s, u"hr"_s, u"me"_s, u"cnr_ME"_s, u"sh_YU.ISO-8859-2"_s, u"sq_AL"_s})
        EXPECT_TRUE(IsCentralEuropean(locale)) << qPrintable(locale);
    for (const QString& locale : {u""_s, u"C"_s, u"C.UTF-8"_s, u"en_US.UTF-8"_s, u"sr_RS"_s, u"sr_Cyrl_ME"_s,
                                  u"sr_ME@cyrillic"_s, u"bs_BA@cyrillic"_s, u"uz_UZ@latin"_s, u"de_DE@euro"_s})
        EXPECT_FALSE(IsCentralEuropean(locale)) << qPrintable(locale);
    const std::pair<const char*, QString> environment[] = {
        {"LANG", u"en_US"_s}, {"LC_CTYPE", u"sr_RS@latin"_s}, {"LC_ALL", u"hr"_s}};
    for (const auto& [variable, name] : environment) qunsetenv(variable);
    for (const auto& [variable, name] : environment) {
        qputenv(variable, name.toLatin1());
        EXPECT_EQ(values::LocaleNameInEnvironment(), name);
    }
    for (const auto& [variable, name] : environment) qunsetenv(variable);
}

TEST(CodePage, LosesNoPlaceInALine) {
    values::SetUserLocale(QLocale(u"hr_HR"_s));
    EXPECT_EQ(ToCodePage(u"a😀b日c"_s), "a?b?c");
    EXPECT_EQ(ToCodePage(QString(QChar(0xD83D)) + u'x'), "?x");
    EXPECT_EQ(ToCodePage(QString(QChar(0xDE00)) + QChar(0xD83D)), "??");
    EXPECT_EQ(ToCodePage(QString(QChar(0)) + u"\r\n\x1B"_s), "\0\r\n\x1B"_ba);
    EXPECT_EQ(ToCodePage({}), "");
}

TEST(CodePage, EveryByteComesBackAsItWas) {
    QByteArray all;
    for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
    for (const auto* locale : {"hr_HR", "en_US"}) {
        values::SetUserLocale(QLocale(QLatin1StringView(locale)));
        EXPECT_EQ(ToCodePage(FromCodePage(all)), all) << locale;
    }
}

}  // namespace
