#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QString>
#include <ostream>

#include "values/Error.h"
#include "values/Locale.h"

// Sets the user's locale for one scope.
class UnderLocale {
public:
    explicit UnderLocale(const char* name) : UnderLocale(QLocale(QString::fromLatin1(name))) {}
    explicit UnderLocale(const QLocale& locale) : before_(values::UserLocale()) { values::SetUserLocale(locale); }
    ~UnderLocale() { values::SetUserLocale(before_); }
    UnderLocale(const UnderLocale&) = delete;
    UnderLocale& operator=(const UnderLocale&) = delete;

private:
    QLocale before_;
};

// Texts of the tables, and of failures, in UTF-8.
inline QString Text(const char* utf8) {
    return QString::fromUtf8(utf8);
}
inline std::string Utf8(const QString& text) {
    return text.toStdString();
}

// The number of the error that an action throws, 0 for none.
template <typename Action>
int ErrorOf(Action action) {
    try {
        action();
    } catch (const values::Error& error) {
        return error.Number();
    }
    return 0;
}
