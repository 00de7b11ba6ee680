#include "values/DateText.h"

#include "UnderLocale.h"

using namespace values;

namespace {

struct Written {
    const char* locale;
    const char* date;  // 3 April 2024
    const char* time;  // 14:05:09
};

struct ReadAs {
    const char* locale;
    const char* text;
    const char* iso;  // empty where the text is no date or no time
};

bool HasOnlyPlainCharacters(const QString& text) {
    for (const QChar c : text) {
        const bool foreignDigit = c.isDigit() && c > u'9';
        const bool specialBlank = c.isSpace() && c != u' ';
        if (foreignDigit || specialBlank || c.category() == QChar::Other_Format) return false;
    }
    return true;
}

}  // namespace

TEST(DateText, IsTheLocalesShortDateWithAFullYearAndItsTimeWithoutAZone) {
    const Written texts[] = {
        {"en_US", "4/3/2024", "2:05:09 PM"},     {"en_GB", "03/04/2024", "14:05:09"},
        {"hr_HR", "03. 04. 2024.", "14:05:09"},  {"de_DE", "03.04.2024", "14:05:09"},
        {"de_CH", "03.04.2024", "14:05:09"},     {"fr_FR", "03/04/2024", "14:05:09"},
        {"bs_BA", "3. 4. 2024.", "14:05:09"},    {"sr_RS", "3.4.2024.", "14:05:09"},
        {"hu_HU", "2024. 04. 03.", "14:05:09"},  {"sv_SE", "2024-04-03", "14:05:09"},
        {"ja_JP", "2024/04/03", "14時05分09秒"}, {"ar_EG", "3/4/2024", "2:05:09 م"},
        {"C", "3 Apr 2024", "14:05:09"},
    };
    for (const auto& [name, date, time] : texts) {
        SCOPED_TRACE(name);
        UnderLocale locale(name);
        EXPECT_EQ(Utf8(DateText(QDate(2024, 4, 3))), date);
        EXPECT_EQ(Utf8(TimeText(QTime(14, 5, 9, 999))), time);
        EXPECT_EQ(DateText(QDate()), u"");
        EXPECT_EQ(TimeText(QTime()), u"");
    }
}

TEST(DateText, EveryDateIsReadBackInEveryLocale) {
    for (const auto& each : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        UnderLocale locale(each);
        for (QDate date(1930, 1, 1); date.year() < 2110; date = date.addDays(97)) {
            const QString text = DateText(date);
            ASSERT_EQ(ReadDate(text), date) << each.name().toStdString() << " " << Utf8(text);
            ASSERT_TRUE(HasOnlyPlainCharacters(text)) << each.name().toStdString() << " " << Utf8(text);
        }
    }
}

TEST(DateText, EveryDayOfFourYearsIsReadBackWhereShopsWork) {
    for (const char* name : {"en_US", "en_GB", "hr_HR", "de_DE", "de_CH", "fr_FR", "bs_BA", "sr_RS", "sl_SI", "it_IT",
                             "ja_JP", "ar_EG", "C"}) {
        UnderLocale locale(name);
        for (QDate date(2023, 1, 1); date.year() < 2027; date = date.addDays(1))
            ASSERT_EQ(ReadDate(DateText(date)), date) << name << " " << Utf8(DateText(date));
    }
}

TEST(DateText, EveryTimeIsReadBackInEveryLocale) {
    for (const auto& each : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        UnderLocale locale(each);
        for (int second = 0; second < 24 * 3600; second += 1777) {
            const QTime time = QTime(0, 0).addSecs(second);
            const QString text = TimeText(time);
            ASSERT_EQ(ReadTime(text), time) << each.name().toStdString() << " " << Utf8(text);
            ASSERT_TRUE(HasOnlyPlainCharacters(text)) << each.name().toStdString() << " " << Utf8(text);
        }
        for (const QTime time : {QTime(0, 0), QTime(12, 0), QTime(23, 59, 59)})
            ASSERT_EQ(ReadTime(TimeText(time)), time);
    }
}

TEST(DateText, ReadsOnlyWhatIsADateInTheUsersForm) {
    const ReadAs texts[] = {
        {"en_US", "4/3/24", "2024-04-03"},
        {"en_US", "04/03/2024", "2024-04-03"},
        {"en_US", " 4/3/2024 ", "2024-04-03"},
        {"en_US", "4/3/29", "2029-04-03"},
        {"en_US", "4/3/30", "1930-04-03"},
        {"en_US", "4/3/99", "1999-04-03"},
        {"en_US", "2/29/2024", "2024-02-29"},
        {"en_US", "2/29/2023", ""},
        {"en_US", "13/1/2024", ""},
        {"en_US", "4/3/024", ""},
        {"en_US", "4/3/4", ""},
        {"en_US", "4/3/20245", ""},
        {"en_US", "4/3", ""},
        {"en_US", "4/3/", ""},
        {"en_US", "4/3/2024 x", ""},
        {"en_US", "4.3.2024", ""},
        {"en_US", "-4/3/2024", ""},
        {"en_US", "٤/٣/٢٠٢٤", ""},
        {"en_US", "", ""},
        {"en_US", "Cola", ""},
        {"en_US", "12.50", ""},
        {"en_US", "0/0/0000", ""},
        {"hr_HR", "3.4.2024.", "2024-04-03"},
        {"hr_HR", "03.04.2024", "2024-04-03"},
        {"hr_HR", "03. 04. 24.", "2024-04-03"},
        {"hr_HR", "03. 04. 2024..", ""},
        {"hr_HR", "4/3/2024", ""},
        {"de_DE", "03.04.24", "2024-04-03"},
        {"de_DE", "2024-04-03", ""},
        {"ar_EG", "3\u200f/4\u200f/2024", ""},
        {"C", "3 apr 2024", "2024-04-03"},
        {"C", "3 Foo 2024", ""},
    };
    for (const auto& [name, text, iso] : texts) {
        SCOPED_TRACE(std::string(name) + ": \"" + text + '"');
        UnderLocale locale(name);
        EXPECT_EQ(Utf8(ReadDate(Text(text)).value_or(QDate()).toString(Qt::ISODate)), iso);
    }
}

TEST(DateText, ReadsOnlyWhatIsATimeInTheUsersForm) {
    const ReadAs texts[] = {
        {"en_US", "2:05:09 PM", "14:05:09"},
        {"en_US", "2:05:09pm", "14:05:09"},
        {"en_US", "12:00:00 AM", "00:00:00"},
        {"en_US", "12:00:00 PM", "12:00:00"},
        {"en_US", "13:00:00 PM", ""},
        {"en_US", "0:00:00 AM", ""},
        {"en_US", "2:05:09", ""},
        {"en_US", "2:05 PM", ""},
        {"en_US", "2:05:09 XM", ""},
        {"hr_HR", "14:05:09", "14:05:09"},
        {"hr_HR", "4:05:09", "04:05:09"},
        {"hr_HR", "24:00:00", ""},
        {"hr_HR", "14:60:00", ""},
        {"hr_HR", "14:05", ""},
        {"hr_HR", "14:05:09 (CET)", ""},
        {"hr_HR", "", ""},
    };
    for (const auto& [name, text, iso] : texts) {
        SCOPED_TRACE(std::string(name) + ": \"" + text + '"');
        UnderLocale locale(name);
        EXPECT_EQ(Utf8(ReadTime(Text(text)).value_or(QTime()).toString(Qt::ISODate)), iso);
    }
}
