#pragma once

#include "values/Locale.h"

// Sets the user's locale for one scope.
class UnderLocale {
public:
    explicit UnderLocale(const QLocale& locale) : before_(values::UserLocale()) { values::SetUserLocale(locale); }
    ~UnderLocale() { values::SetUserLocale(before_); }
    UnderLocale(const UnderLocale&) = delete;
    UnderLocale& operator=(const UnderLocale&) = delete;

private:
    QLocale before_;
};
