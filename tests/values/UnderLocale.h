#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QString>
#include <ostream>

#include "support/ErrorOf.h"
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
