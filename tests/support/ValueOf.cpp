#include "support/ValueOf.h"

#include <stdexcept>

#include "support/UnderLocale.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::Value;

namespace drivers {

namespace {

const QStringList Kinds{u"null"_s, u"text"_s, u"whole"_s, u"money"_s, u"double"_s, u"date"_s, u"time"_s, u"yes"_s};

}  // namespace

Value ValueOf(const QString& told) {
    const QString text = told.section(u' ', 1);
    switch (static_cast<Value::Kind>(Kinds.indexOf(told.section(u' ', 0, 0)))) {
        case Value::Kind::Null:
            return {};
        case Value::Kind::Text:
            return text;
        case Value::Kind::Whole:
            return text.toLongLong();
        case Value::Kind::Money:
            return MoneyOf(text);
        case Value::Kind::Double:
            return text.toDouble();
        case Value::Kind::Date:
            return QDate::fromString(text, Qt::ISODate);
        case Value::Kind::Time:
            return QTime::fromString(text, Qt::ISODateWithMs);
        case Value::Kind::YesNo:
            return text == u"True";
    }
    throw std::runtime_error("no value: " + told.toStdString());
}

QString Told(const Value& value) {
    const UnderLocale plain(QLocale::c());
    const QString kind = Kinds[static_cast<int>(value.GetKind())];
    if (value.GetKind() == Value::Kind::Date) return kind + u' ' + value.ToDate().toString(Qt::ISODate);
    return value.IsNull() ? kind : kind + u' ' + value.ToText();
}

values::Money MoneyOf(const QString& text) {
    const UnderLocale plain(QLocale::c());
    return values::CMoney(text);
}

QString PlainText(values::Money money) {
    const UnderLocale plain(QLocale::c());
    return values::NumberText(money);
}

}  // namespace drivers
