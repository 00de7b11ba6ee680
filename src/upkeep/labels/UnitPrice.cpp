#include "upkeep/labels/UnitPrice.h"

#include <QHash>
#include <QRegularExpression>
#include <limits>

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

constexpr qint64 Million = 1000000;

struct Unit {
    Measure measure;
    qint64 millionths;
};

const QHash<QString, Unit> Units{
    {u"kg"_s, {Measure::Kilogram, Million}},        {u"dag"_s, {Measure::Kilogram, Million / 100}},
    {u"dkg"_s, {Measure::Kilogram, Million / 100}}, {u"g"_s, {Measure::Kilogram, Million / 1000}},
    {u"gr"_s, {Measure::Kilogram, Million / 1000}}, {u"l"_s, {Measure::Litre, Million}},
    {u"lit"_s, {Measure::Litre, Million}},          {u"dl"_s, {Measure::Litre, Million / 10}},
    {u"cl"_s, {Measure::Litre, Million / 100}},     {u"ml"_s, {Measure::Litre, Million / 1000}},
};

// "6 x 1,5 l" and "1,5 l x 6": how many, the number, its decimals, the unit, how many.
const auto Quantity = QRegularExpression(
    u"(?<![\\d.,\\p{L}])(?:(\\d{1,3})\\s*[x×*]\\s*)?(\\d{1,5})(?:[.,](\\d{1,3}))?\\s*"
    "(kg|dag|dkg|gr|g|lit|l|dl|cl|ml)(?![\\p{L}\\d])(?:\\s*[x×*]\\s*(\\d{1,3})(?![\\d.,]))?"_s,
    QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);

// So many in a carton, as a wholesaler writes it.
const auto Carton = QRegularExpression(u"\\d\\s*/\\s*\\d"_s);

std::optional<Content> Read(const QRegularExpressionMatch& match) {
    const QString decimals = match.captured(3);
    const Unit unit = Units.value(match.captured(4).toLower());
    const qint64 thousandths = match.captured(2).toLongLong() * 1000 + decimals.leftJustified(3, u'0').toLongLong();
    // A thousand grams with a separator in it, or one gram with three decimals: who knows.
    if (decimals.size() == 3 && unit.millionths < Million) return {};
    qint64 pieces = 1;
    for (const int group : {1, 5})
        if (const QString count = match.captured(group); !count.isEmpty()) pieces *= count.toLongLong();
    const qint64 millionths = thousandths * pieces * unit.millionths / 1000;
    if (millionths == 0) return {};
    return Content{unit.measure, millionths};
}

// In hundredths, so that nothing is rounded twice.
std::optional<Money> Divide(Money price, qint64 millionths) {
    constexpr qint64 unitsOfACent = Money::Scale / 100;
    const __int128 divisor = static_cast<__int128>(millionths) * unitsOfACent;
    const __int128 cents = (static_cast<__int128>(price.Units()) * Million * 2 + divisor) / (divisor * 2);
    if (cents > std::numeric_limits<qint64>::max() / unitsOfACent) return {};
    return Money::FromUnits(static_cast<qint64>(cents) * unitsOfACent);
}

}  // namespace

std::optional<Content> ContentOf(const QString& name) {
    if (Carton.match(name).hasMatch()) return {};
    std::optional<Content> found;
    for (auto matches = Quantity.globalMatch(name); matches.hasNext();) {
        const auto content = Read(matches.next());
        if (!content || (found && *found != *content)) return {};
        found = content;
    }
    return found;
}

std::optional<Measure> MeasureOfUnit(const QString& unit) {
    const auto known = Units.constFind(unit.trimmed().toLower());
    if (known == Units.cend() || known->millionths != Million) return {};
    return known->measure;
}

std::optional<UnitPrice> UnitPriceOf(const QString& name, const QString& unit, Money price) {
    if (price <= Money()) return {};
    if (const auto measure = MeasureOfUnit(unit))
        return UnitPrice{.measure = *measure, .price = price, .isThePrice = true};
    const auto content = ContentOf(name);
    if (!content) return {};
    const auto each = Divide(price, content->millionths);
    if (!each) return {};
    return UnitPrice{.measure = content->measure, .price = *each};
}

}  // namespace upkeep
