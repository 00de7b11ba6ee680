#pragma once

#include <QLocale>

#include "values/DateForm.h"

namespace values {

// What is taken from the user's locale, asked once: asking it again for every list cell would be the slowest part of
// writing a number.
struct LocaleTexts {
    explicit LocaleTexts(const QLocale& locale);

    // A thin, a fixed and a plain blank look alike to whoever types them, and so do the two apostrophes.
    bool IsGroupSeparator(QChar c) const;

    QLocale locale;
    QChar decimalSeparator;
    QChar groupSeparator;  // null where the locale has none
    DateForm date;
    DateForm time;
    QString am;
    QString pm;
};

const LocaleTexts& UserTexts();

}  // namespace values
