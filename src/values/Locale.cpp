#include "values/Locale.h"

#include "values/LocaleTexts.h"

namespace values {

namespace {

QChar FirstChar(const QString& text) {
    return text.isEmpty() ? QChar() : text.front();
}

bool IsBlank(QChar c) {
    return c == u' ' || c == QChar::Nbsp || c == QChar(0x202F);
}

bool IsApostrophe(QChar c) {
    return c == u'\'' || c == QChar(0x2019);
}

LocaleTexts& InstalledTexts() {
    static LocaleTexts texts{QLocale::system()};
    return texts;
}

QString& InstalledName() {
    static QString name = LocaleNameInEnvironment();
    return name;
}

}  // namespace

LocaleTexts::LocaleTexts(const QLocale& from)
    : locale(from),
      decimalSeparator(FirstChar(from.decimalPoint())),
      groupSeparator(FirstChar(from.groupSeparator())),
      date(ParseDateForm(from.dateFormat(QLocale::ShortFormat))),
      time(ParseTimeForm(from.timeFormat(QLocale::LongFormat))),
      am(PlainText(from.amText())),
      pm(PlainText(from.pmText())) {}

bool LocaleTexts::IsGroupSeparator(QChar c) const {
    if (groupSeparator.isNull()) return false;
    if (c == groupSeparator) return true;
    return (IsBlank(groupSeparator) && IsBlank(c)) || (IsApostrophe(groupSeparator) && IsApostrophe(c));
}

const LocaleTexts& UserTexts() {
    return InstalledTexts();
}

const QLocale& UserLocale() {
    return UserTexts().locale;
}

void SetUserLocale(const QLocale& locale) {
    InstalledTexts() = LocaleTexts(locale);
    InstalledName() = locale.bcp47Name();
}

const QString& UserLocaleName() {
    return InstalledName();
}

QString LocaleNameInEnvironment() {
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (QString name = qEnvironmentVariable(variable); !name.isEmpty()) return name;
    return {};
}

QChar DecimalSeparatorChar() {
    return UserTexts().decimalSeparator;
}

QChar GroupSeparatorChar() {
    return UserTexts().groupSeparator;
}

}  // namespace values
