#include "values/NumberForm.h"

#include <algorithm>

#include "values/Locale.h"

namespace values {

namespace {

constexpr qint64 SmallestPlainExponent = -4;

using TextBuffer = QVarLengthArray<QChar, 48>;

QString ToText(const TextBuffer& buffer) {
    return QString(buffer.data(), buffer.size());
}

struct NumberPattern {
    explicit NumberPattern(QStringView pattern) {
        bool whole = true;
        for (const QChar c : pattern) {
            if (c == u'.') {
                whole = false;
            } else if (c == u',') {
                groups = true;
            } else if (whole) {
                leastWhole += c == u'0';
            } else if (c == u'0' || c == u'#') {
                ++mostDecimals;
                if (c == u'0') leastDecimals = mostDecimals;
            }
        }
    }

    int leastWhole = 0;
    int leastDecimals = 0;
    int mostDecimals = 0;
    bool groups = false;
};

void AddDecimals(TextBuffer& text, const Decimal& decimal, qint64 count) {
    if (count <= 0) return;
    text.append(DecimalSeparatorChar());
    for (qint64 place = 1; place <= count; ++place) text.append(QLatin1Char(decimal.DigitFor(-place)));
}

QString ExponentText(const Decimal& decimal) {
    TextBuffer text;
    if (decimal.negative) text.append(u'-');
    Decimal mantissa = decimal;
    mantissa.point = 1;
    text.append(QLatin1Char(mantissa.DigitFor(0)));
    AddDecimals(text, mantissa, mantissa.digits.size() - 1);
    const qint64 exponent = decimal.point - 1;
    text.append(u'E');
    text.append(exponent < 0 ? u'-' : u'+');
    return ToText(text) + QString::number(std::abs(exponent)).rightJustified(2, u'0');
}

}  // namespace

QString GeneralText(const Decimal& decimal, int wholeDigits) {
    const qint64 exponent = decimal.IsZero() ? 0 : decimal.point - 1;
    if (exponent < SmallestPlainExponent || exponent >= wholeDigits) return ExponentText(decimal);
    TextBuffer text;
    if (decimal.negative && !decimal.IsZero()) text.append(u'-');
    for (qint64 place = std::max<qint64>(exponent, 0); place >= 0; --place)
        text.append(QLatin1Char(decimal.DigitFor(place)));
    AddDecimals(text, decimal, decimal.digits.size() - decimal.point);
    return ToText(text);
}

QString PatternText(Decimal decimal, QStringView patternText) {
    const NumberPattern pattern(patternText);
    decimal.RoundHalfAway(pattern.mostDecimals);
    TextBuffer text;
    if (decimal.negative && !decimal.IsZero()) text.append(u'-');
    const QChar group = pattern.groups ? GroupSeparatorChar() : QChar();
    for (qint64 place = std::max<qint64>(decimal.point, pattern.leastWhole) - 1; place >= 0; --place) {
        text.append(QLatin1Char(decimal.DigitFor(place)));
        if (!group.isNull() && place > 0 && place % 3 == 0) text.append(group);
    }
    AddDecimals(text, decimal, std::max<qint64>(pattern.leastDecimals, decimal.digits.size() - decimal.point));
    return ToText(text);
}

}  // namespace values
