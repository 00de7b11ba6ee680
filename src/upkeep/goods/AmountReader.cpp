#include "upkeep/goods/AmountReader.h"

#include <QRegularExpression>

#include "upkeep/Words.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr qsizetype MostDecimals = 4;
constexpr qsizetype MostDigits = 14;  // that money holds

// Digits and their signs, without currency, percent sign, blanks of all kinds and the Swiss apostrophe.
QString Bare(const QString& cell) {
    static const QRegularExpression beside(u"[\\p{Sc}\\p{L}%\\s\\x{00A0}\\x{202F}'’]+"_s);
    static const QRegularExpression abbreviation(u"(?<=\\p{L})\\."_s);
    return QString(cell).remove(abbreviation).remove(beside).replace(QChar(0x2212), u'-');
}

}  // namespace

std::optional<DecimalSign> GuessDecimalSign(const QStringList& cells) {
    int points = 0, commas = 0;
    for (const QString& cell : cells) {
        const QString bare = Bare(cell);
        const qsizetype point = bare.lastIndexOf(u'.'), comma = bare.lastIndexOf(u',');
        if (point >= 0 && comma >= 0) {
            ++(point > comma ? points : commas);
        } else if (const qsizetype only = std::max(point, comma); only >= 0) {
            const QChar sign = bare[only];
            const bool isGroup = bare.count(sign) > 1 || bare.size() - only - 1 == 3;
            if (!isGroup) ++(sign == u'.' ? points : commas);
        }
    }
    if (points == commas) return std::nullopt;
    return points > commas ? DecimalSign::Point : DecimalSign::Comma;
}

ReadAmount AmountOf(const QString& cell, DecimalSign sign) {
    if (cell.trimmed().startsWith(u'=')) return {.fault = Words::tr("\"%1\" is a formula, not a number").arg(cell)};
    static const QRegularExpression comma(u"^(-?)(\\d{1,3}(?:\\.\\d{3})+|\\d+)(?:,(\\d*))?$"_s);
    static const QRegularExpression point(u"^(-?)(\\d{1,3}(?:,\\d{3})+|\\d+)(?:\\.(\\d*))?$"_s);
    const auto parts = (sign == DecimalSign::Comma ? comma : point).match(Bare(cell));
    if (!parts.hasMatch()) return {.fault = Words::tr("\"%1\" is no number").arg(cell)};
    const QString whole = parts.captured(2).remove(u'.').remove(u',');
    QString decimals = parts.captured(3);
    while (decimals.size() > MostDecimals && decimals.endsWith(u'0')) decimals.chop(1);
    if (decimals.size() > MostDecimals) return {.fault = Words::tr("\"%1\" has more than four decimals").arg(cell)};
    if (whole.size() > MostDigits) return {.fault = Words::tr("\"%1\" is too large").arg(cell)};
    const qint64 units = (whole + decimals.leftJustified(MostDecimals, u'0')).toLongLong();
    return {.amount = values::Money::FromUnits(parts.captured(1).isEmpty() ? units : -units)};
}

}  // namespace upkeep
