#include "upkeep/goods/AmountText.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

constexpr int StoredDecimals = 4;

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool IsThousandsBlank(QChar c) {
    return c.isSpace() || c == u'\u202F' || c == u'\'' || c == u'\u2019';
}

bool IsCurrency(const QString& word) {
    static const QSet<QString> words{u"km"_s,  u"bam"_s, u"kn"_s,  u"hrk"_s, u"eur"_s, u"euro"_s, u"rsd"_s, u"din"_s,
                                     u"usd"_s, u"chf"_s, u"fr"_s,  u"gbp"_s, u"sfr"_s, u"den"_s,  u"mkd"_s, u"huf"_s,
                                     u"ft"_s,  u"czk"_s, u"kč"_s,  u"pln"_s, u"zł"_s,  u"ron"_s,  u"lei"_s, u"lek"_s,
                                     u"all"_s, u"dkk"_s, u"sek"_s, u"nok"_s, u"kr"_s,  u"bgn"_s,  u"лв"_s,  u"км"_s};
    return words.contains(word.toLower());
}

// Without the signs and words of a currency before and behind it; what is left of another text is no number.
QString WithoutCurrency(QStringView text) {
    QString bare = text.trimmed().toString();
    const auto isSign = [](QChar c) { return c.category() == QChar::Symbol_Currency || c == u'%'; };
    static const QRegularExpression before(u"^([+-]?)\\s*(\\p{L}+)\\.?\\s*"_s);
    static const QRegularExpression behind(u"\\s*(\\p{L}+)\\.?$"_s);
    bare.removeIf(isSign);
    bare = bare.trimmed();
    if (const auto match = before.match(bare); match.hasMatch() && IsCurrency(match.captured(2)))
        bare = match.captured(1) + bare.mid(match.capturedLength());
    if (const auto match = behind.match(bare); match.hasMatch() && IsCurrency(match.captured(1)))
        bare.truncate(match.capturedStart());
    bare = bare.trimmed();
    // "12,-" and "12,--" are round sums.
    static const QRegularExpression round(u"[.,](-{1,2}|\u2013|\u2014)$"_s);
    bare.remove(round);
    bare.replace(u'\u2212', u'-');
    return bare;
}

// Digits, and where commas and points stand among them.
struct Parts {
    bool isNegative = false;
    QString text;  // digits, commas, points
};

// Blanks and apostrophes only stand between full groups of three.
std::optional<QString> WithoutThousandsBlanks(const QString& text) {
    QString bare;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!IsThousandsBlank(text[i])) {
            bare += text[i];
            continue;
        }
        qsizetype digits = 0;
        while (i + 1 + digits < text.size() && IsDigit(text[i + 1 + digits])) ++digits;
        if (i == 0 || !IsDigit(text[i - 1]) || digits != 3 || bare.contains(u',') || bare.contains(u'.')) return {};
    }
    return bare;
}

std::optional<Parts> PartsOf(QStringView text) {
    QString bare = WithoutCurrency(text);
    Parts parts;
    if (bare.endsWith(u'-') && bare.size() > 1) bare = u'-' + bare.chopped(1).trimmed();
    if (bare.startsWith(u'-') || bare.startsWith(u'+')) {
        parts.isNegative = bare[0] == u'-';
        bare = bare.mid(1).trimmed();
    }
    const auto joined = WithoutThousandsBlanks(bare);
    if (!joined || !std::ranges::any_of(*joined, IsDigit)) return {};
    for (const QChar c : *joined)
        if (!IsDigit(c) && c != u',' && c != u'.') return {};
    parts.text = *joined;
    return parts;
}

QChar OtherOf(QChar decimal) {
    return decimal == u',' ? u'.' : u',';
}

// Whether a sign stands only between full groups of three digits.
bool Groups(const QString& whole, QChar sign) {
    const QStringList groups = whole.split(sign);
    if (groups.size() == 1) return true;
    if (groups[0].isEmpty() || groups[0].size() > 3 || groups[0] == u"0") return false;
    return std::all_of(groups.begin() + 1, groups.end(), [](const QString& group) { return group.size() == 3; });
}

// Null when it can't be said from this text alone.
QChar DecimalOf(const QString& text) {
    const qsizetype comma = text.lastIndexOf(u','), point = text.lastIndexOf(u'.');
    if (comma < 0 && point < 0) return {};
    const QChar last = comma > point ? u',' : u'.';
    const bool hasBoth = comma >= 0 && point >= 0;
    if (text.count(last) > 1) return hasBoth || !Groups(text, last) ? QChar() : OtherOf(last);
    if (hasBoth) return Groups(text.first(std::max(comma, point)), OtherOf(last)) ? last : QChar();
    return Groups(text, last) ? QChar() : last;
}

}  // namespace

void DecimalVotes::Count(QStringView text) {
    const auto parts = PartsOf(text);
    if (!parts) return;
    const QChar decimal = DecimalOf(parts->text);
    commas_ += decimal == u',';
    points_ += decimal == u'.';
}

QChar DecimalVotes::Winner() const {
    if (commas_ == points_) return {};
    return commas_ > points_ ? u',' : u'.';
}

std::variant<Money, AmountFault> ReadAmount(QStringView text, QChar decimal) {
    const auto parts = PartsOf(text);
    if (!parts) return AmountFault::NotANumber;
    const bool hasSigns = parts->text.contains(u',') || parts->text.contains(u'.');
    if (decimal.isNull() && hasSigns) {
        decimal = DecimalOf(parts->text);
        if (decimal.isNull()) return AmountFault::UnclearSeparator;
    }
    const qsizetype at = hasSigns ? parts->text.lastIndexOf(decimal) : -1;
    QString whole = at < 0 ? parts->text : parts->text.first(at);
    QString decimals = at < 0 ? QString() : parts->text.sliced(at + 1);
    if (whole.contains(decimal) || decimals.contains(OtherOf(decimal)) || !Groups(whole, OtherOf(decimal)))
        return AmountFault::OtherSeparator;
    whole.remove(OtherOf(decimal));
    while (decimals.endsWith(u'0')) decimals.chop(1);
    if (decimals.size() > StoredDecimals) return AmountFault::TooManyDecimals;
    bool fits = false;
    const qint64 units = (whole + decimals.leftJustified(StoredDecimals, u'0')).toLongLong(&fits);
    if (!fits) return AmountFault::TooLarge;
    return Money::FromUnits(parts->isNegative ? -units : units);
}

bool IsShortened(QStringView text) {
    static const QRegularExpression pattern(u"^\\s*[0-9]([.,][0-9]+)?[eE]\\+?[0-9]+\\s*$"_s);
    return pattern.match(text.toString()).hasMatch();
}

}  // namespace upkeep
