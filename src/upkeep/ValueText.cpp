#include "upkeep/ValueText.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include "store/StoreError.h"
#include "upkeep/Words.h"

using namespace Qt::StringLiterals;
using store::Type;
using values::Money;
using values::Value;

namespace upkeep {

namespace {

const auto DatePattern = u"yyyy-MM-dd"_s;
const auto TimePattern = u"hh:mm:ss"_s;
// What would end a cell or a line, and its letter behind a backslash.
constexpr QByteArrayView Specials("\t\n\r\0\\", 5);
constexpr QByteArrayView Codes("tnr0\\", 5);

QByteArray MoneyText(Money money) {
    constexpr int decimals = 4;
    const qint64 units = money.Units();
    // Negated as unsigned, since the lowest amount has no positive twin.
    const quint64 size = units < 0 ? 0 - static_cast<quint64>(units) : static_cast<quint64>(units);
    QByteArray digits = QByteArray::number(size).rightJustified(decimals + 1, '0');
    digits.insert(digits.size() - decimals, '.');
    while (digits.endsWith('0')) digits.chop(1);
    if (digits.endsWith('.')) digits.chop(1);
    return units < 0 ? '-' + digits : digits;
}

// At 15 significant digits, as the program shows a double everywhere, and never with an exponent.
QByteArray DoubleText(double number) {
    const double shown = QByteArray::number(number, 'e', 14).toDouble();
    return shown == 0 ? "0"_ba : QByteArray::number(shown, 'f', QLocale::FloatingPointShortest);
}

[[noreturn]] void Refuse(const QByteArray& cell, const QString& refusal) {
    constexpr int shown = 40;
    QString text = QString::fromUtf8(cell);
    if (text.size() > shown) text = text.left(shown) + u"..."_s;
    throw store::StoreError(store::ConversionFailed, refusal.arg(text));
}

bool Matches(const QByteArray& cell, const QRegularExpression& pattern) {
    return pattern.match(QString::fromLatin1(cell)).hasMatch();
}

Value ReadWhole(const QByteArray& cell) {
    static const QRegularExpression pattern(u"\\A-?[0-9]+\\z"_s);
    bool fits = false;
    const qint64 whole = cell.toLongLong(&fits);
    if (!fits || !Matches(cell, pattern)) Refuse(cell, Words::tr("'%1' is no whole number."));
    return whole;
}

Value ReadScaled(const QByteArray& cell) {
    static const QRegularExpression pattern(u"\\A-?[0-9]+(\\.[0-9]{1,4})?\\z"_s);
    if (!Matches(cell, pattern)) Refuse(cell, Words::tr("'%1' is no number with up to four decimals."));
    const qsizetype point = cell.indexOf('.');
    const QByteArray whole = point < 0 ? cell : cell.left(point);
    const QByteArray decimals = point < 0 ? QByteArray() : cell.mid(point + 1);
    bool fits = false;
    const qint64 units = (whole + decimals.leftJustified(4, '0')).toLongLong(&fits);
    if (!fits) Refuse(cell, Words::tr("'%1' is no number within the range of a column."));
    return Money::FromUnits(units);
}

Value ReadDouble(const QByteArray& cell) {
    static const QRegularExpression pattern(u"\\A-?[0-9]+(\\.[0-9]+)?\\z"_s);
    bool fits = false;
    const double number = cell.toDouble(&fits);
    if (!fits || !Matches(cell, pattern)) Refuse(cell, Words::tr("'%1' is no number."));
    return number;
}

Value ReadDate(const QByteArray& cell) {
    static const QRegularExpression pattern(u"\\A[0-9]{4}-[0-9]{2}-[0-9]{2}\\z"_s);
    const QDate date = QDate::fromString(QString::fromLatin1(cell), DatePattern);
    if (!date.isValid() || !Matches(cell, pattern)) Refuse(cell, Words::tr("'%1' is no date (yyyy-mm-dd)."));
    return date;
}

Value ReadTime(const QByteArray& cell) {
    static const QRegularExpression pattern(u"\\A[0-9]{2}:[0-9]{2}:[0-9]{2}\\z"_s);
    const QTime time = QTime::fromString(QString::fromLatin1(cell), TimePattern);
    if (!time.isValid() || !Matches(cell, pattern)) Refuse(cell, Words::tr("'%1' is no time (hh:mm:ss)."));
    return time;
}

Value ReadYesNo(const QByteArray& cell) {
    if (cell.compare("True", Qt::CaseInsensitive) == 0) return true;
    if (cell.compare("False", Qt::CaseInsensitive) == 0) return false;
    Refuse(cell, Words::tr("'%1' is no yes/no (True, False)."));
}

Value ReadText(const QByteArray& cell) {
    const QString raw = DecodeUtf8(cell);
    if (!raw.contains(u'\\')) return raw;
    QString text;
    text.reserve(raw.size());
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw[i] != u'\\') {
            text += raw[i];
            continue;
        }
        const char code = ++i < raw.size() ? raw[i].toLatin1() : ' ';
        const qsizetype known = code == '\0' ? -1 : Codes.indexOf(code);
        if (known < 0)
            Refuse(cell, Words::tr("'%1' is no text: a backslash is written \\\\ (known are \\t \\n \\r \\0 \\\\)."));
        text += QLatin1Char(Specials[known]);
    }
    return text;
}

}  // namespace

QByteArray WriteText(const QString& text) {
    QByteArray cell;
    const QByteArray utf8 = text.toUtf8();
    cell.reserve(utf8.size());
    for (const char byte : utf8) {
        const qsizetype special = Specials.indexOf(byte);
        if (special < 0)
            cell += byte;
        else
            (cell += '\\') += Codes[special];
    }
    return cell;
}

QString ShownAmount(Money amount) {
    return QString::fromLatin1(MoneyText(amount));
}

QByteArray WriteValue(const Value& value) {
    switch (value.GetKind()) {
        case Value::Kind::Null:
            return {};
        case Value::Kind::Text:
            return WriteText(value.As<QString>());
        case Value::Kind::Whole:
            return QByteArray::number(value.As<qint64>());
        case Value::Kind::Money:
            return MoneyText(value.As<Money>());
        case Value::Kind::Double:
            return DoubleText(value.As<double>());
        case Value::Kind::Date:
            return value.As<QDate>().toString(DatePattern).toLatin1();
        case Value::Kind::Time:
            return value.As<QTime>().toString(TimePattern).toLatin1();
        case Value::Kind::YesNo:
            return value.As<bool>() ? "True"_ba : "False"_ba;
    }
    return {};
}

Value ReadValue(const QByteArray& cell, Type type) {
    if (cell.isEmpty()) return {};
    switch (type) {
        case Type::Null:
        case Type::Text:
            return ReadText(cell);
        case Type::Whole:
            return ReadWhole(cell);
        case Type::Money:
        case Type::Decimal:
        case Type::Quantity:
            return ReadScaled(cell);
        case Type::Double:
            return ReadDouble(cell);
        case Type::Date:
            return ReadDate(cell);
        case Type::Time:
            return ReadTime(cell);
        case Type::YesNo:
            return ReadYesNo(cell);
    }
    return {};
}

QString DecodeUtf8(const QByteArray& bytes) {
    // A leading byte-order mark is a character of the text here.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder(bytes);
    if (decoder.hasError() || !bytes.isValidUtf8())
        throw store::StoreError(store::ConversionFailed, Words::tr("The text is not valid UTF-8."));
    return text;
}

}  // namespace upkeep
