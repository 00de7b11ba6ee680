#include "manager/overview/OverviewCharts.h"

#include <QCoreApplication>
#include <algorithm>

#include "manager/Texts.h"
#include "values/DateText.h"
#include "values/Locale.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using upkeep::Days;
using values::Money;

namespace manager {

namespace {

constexpr qint64 MostDays = 62;
constexpr qint64 MostMonths = 36;
constexpr qint64 FewDays = 8;

class Words {
    Q_DECLARE_TR_FUNCTIONS(manager::OverviewCharts)
};

QString Weekday(int day, QLocale::FormatType form = QLocale::LongFormat) {
    return values::UserLocale().standaloneDayName(day, form);
}

Days Within(const Days& span, const Days& days) {
    return {std::max(span.first, days.first), std::min(span.last, days.last)};
}

Days YearOf(QDate day) {
    return {{day.year(), 1, 1}, {day.year(), 12, 31}};
}

QString LabelOf(const Span& span, bool isRoomy) {
    const QDate day = span.days.first;
    switch (span.kind) {
        case Span::Kind::Hour:
            return QString::number(span.hour);
        case Span::Kind::Day: {
            const QString number = QString::number(day.day());
            return isRoomy ? Weekday(day.dayOfWeek(), QLocale::ShortFormat) + u' ' + number : number;
        }
        case Span::Kind::Month:
            return values::UserLocale().standaloneMonthName(day.month(), QLocale::ShortFormat);
        case Span::Kind::Year:
            break;
    }
    return QString::number(day.year());
}

Money SumOf(const upkeep::TakingsByDay& byDay, const Days& days) {
    Money sum;
    for (auto day = byDay.lower_bound(days.first); day != byDay.end() && day->first <= days.last; ++day)
        sum += day->second.amounts.total;
    return sum;
}

QString BeforeName(const Days& days) {
    if (days.Count() == 7) return Words::tr("7 days before");
    if (days == upkeep::MonthOf(days.first)) return Words::tr("Month before");
    if (days == YearOf(days.first)) return Words::tr("Year before");
    return Words::tr("Days before");
}

QString PiecesText(const upkeep::GoodsTakings& goods) {
    return values::NumberText(goods.pieces) + (goods.unit.isEmpty() ? QString() : u' ' + goods.unit);
}

QString Hour(int hour) {
    return u"%1:00–%1:59"_s.arg(hour);
}

QString LastsText(const upkeep::RunningOut& entry) {
    if (entry.stock <= Money()) return Words::tr("gone");
    return entry.days == 1 ? Words::tr("1 day") : Words::tr("%1 days").arg(entry.days);
}

}  // namespace

std::vector<Span> SpansOf(const Days& days) {
    std::vector<Span> spans;
    if (days.Count() == 1) {
        for (int hour = 0; hour < 24; ++hour) spans.push_back({Span::Kind::Hour, days, hour});
        return spans;
    }
    const qint64 months = 12 * (days.last.year() - days.first.year()) + days.last.month() - days.first.month() + 1;
    const auto kind = days.Count() <= MostDays ? Span::Kind::Day
                      : months <= MostMonths   ? Span::Kind::Month
                                               : Span::Kind::Year;
    for (QDate day = days.first; day <= days.last; day = spans.back().days.last.addDays(1)) {
        const Days whole = kind == Span::Kind::Day     ? Days{day, day}
                           : kind == Span::Kind::Month ? upkeep::MonthOf(day)
                                                       : YearOf(day);
        spans.push_back({kind, Within(whole, days)});
    }
    return spans;
}

QString NameOf(const Span& span) {
    const QDate day = span.days.first;
    switch (span.kind) {
        case Span::Kind::Hour:
            return Hour(span.hour);
        case Span::Kind::Day:
            return Weekday(day.dayOfWeek(), QLocale::ShortFormat) + u' ' + values::DateText(day);
        case Span::Kind::Month:
            return MonthText(day);
        case Span::Kind::Year:
            break;
    }
    return QString::number(day.year());
}

// The days that are compared begin earlier by the same distance; of whole months and years each number stands for
// itself.
ColumnChart::Content TakingsContent(const upkeep::Overview& overview, const std::vector<Span>& spans) {
    const bool isByHour = spans.front().kind == Span::Kind::Hour;
    ColumnChart::Content content{isByHour ? Words::tr("Hour") : Words::tr("Days"), Words::tr("Taken"), {}, {}};
    if (!overview.before.empty() && !isByHour) content.beforeName = BeforeName(overview.days);
    const Days before = upkeep::DaysBefore(overview.days);
    const bool isRoomy = static_cast<qint64>(spans.size()) <= FewDays;
    const HoursShown hours = HoursOf(overview);
    for (const Span& span : spans) {
        if (isByHour) {
            if (span.hour < hours.first || span.hour > hours.last) continue;
            const auto day = static_cast<size_t>(span.days.first.dayOfWeek() - 1);
            content.columns.push_back(
                {LabelOf(span, isRoomy), NameOf(span), overview.byWeekday[day][static_cast<size_t>(span.hour)], {}});
            continue;
        }
        Days compared{before.first.addDays(overview.days.first.daysTo(span.days.first)), {}};
        compared.last = compared.first.addDays(span.days.Count() - 1);
        if (span.kind == Span::Kind::Month && overview.days == YearOf(overview.days.first))
            compared = upkeep::MonthOf(span.days.first.addYears(-1));
        content.columns.push_back({LabelOf(span, isRoomy), NameOf(span), SumOf(overview.byDay, span.days),
                                   SumOf(overview.before, Within(compared, before))});
    }
    return content;
}

HoursShown HoursOf(const upkeep::Overview& overview) {
    HoursShown hours{24, -1};
    for (const upkeep::Hours& day : overview.byWeekday)
        for (int hour = 0; hour < 24; ++hour)
            if (day[static_cast<size_t>(hour)] != Money())
                hours = {std::min(hours.first, hour), std::max(hours.last, hour)};
    return hours;
}

HeatMap::Content HoursContent(const upkeep::Overview& overview, HoursShown hours) {
    HeatMap::Content content{Words::tr("Weekday"), Words::tr("Hour"), Words::tr("Taken"), {}, {}, {}, {}, {}};
    for (int hour = hours.first; hour <= hours.last; ++hour) {
        content.columns << Hour(hour);
        content.columnLabels << QString::number(hour);
    }
    for (int day = 1; day <= 7; ++day) {
        content.rows << Weekday(day);
        content.rowLabels << Weekday(day, QLocale::ShortFormat);
        for (int hour = hours.first; hour <= hours.last; ++hour)
            content.cells.push_back(overview.byWeekday[static_cast<size_t>(day - 1)][static_cast<size_t>(hour)]);
    }
    return content;
}

RankList::Content GoodsContent(const std::vector<upkeep::GoodsTakings>& goods, upkeep::By by) {
    RankList::Content content{
        {Words::tr("Goods"), Words::tr("Code"), Words::tr("Pieces"), Words::tr("Taken")}, {}, {2}};
    for (const auto& each : goods)
        content.rows.push_back({each.name,
                                by == upkeep::By::Total ? AmountText(each.total) : PiecesText(each),
                                by == upkeep::By::Total ? each.total : each.pieces,
                                {each.name, each.code, each.pieces, each.total}});
    return content;
}

RankList::Content NamedContent(const QString& heading, const std::vector<upkeep::NamedTakings>& list,
                               bool withInvoices) {
    RankList::Content content{{heading, Words::tr("Taken")}, {}};
    if (withInvoices) content.headings << Words::tr("Invoices");
    for (const auto& each : list) {
        const Money total = each.takings.amounts.total;
        content.rows.push_back({each.name, AmountText(total), total, {each.name, total}});
        if (withInvoices) content.rows.back().cells.push_back(each.takings.invoices);
    }
    return content;
}

RankList::Content TaxesContent(const std::vector<upkeep::TaxTakings>& taxes) {
    RankList::Content content{
        {Words::tr("Tax"), Words::tr("Rate"), Words::tr("Base"), Words::tr("Tax amount"), Words::tr("With tax")},
        {},
        {1}};
    for (const auto& [id, name, percent, amounts] : taxes)
        content.rows.push_back({Words::tr("%1, in %2").arg(name, AmountText(amounts.total)),
                                AmountText(amounts.tax),
                                amounts.tax,
                                {name, percent, amounts.total - amounts.tax, amounts.tax, amounts.total}});
    return content;
}

// The longer the bar, the sooner it is gone.
RankList::Content RunningOutContent(const std::vector<upkeep::RunningOut>& list) {
    constexpr qint64 month = 31;
    RankList::Content content{{Words::tr("Goods"), Words::tr("Code"), Words::tr("In stock"), Words::tr("Goes a day"),
                               Words::tr("Lasts days")},
                              {},
                              {2, 3}};
    for (const auto& each : list)
        content.rows.push_back({each.goods.name,
                                LastsText(each),
                                Money::FromWhole(std::max<qint64>(month - each.days, 0)),
                                {each.goods.name, each.goods.code, each.stock, each.goods.pieces, each.days}});
    return content;
}

QString ChangeText(Money now, Money before) {
    if (before <= Money()) return {};
    const auto percent = static_cast<__int128>(now.Units() - before.Units()) * 100;
    const auto half = static_cast<__int128>(percent < 0 ? -before.Units() : before.Units());
    const auto rounded = static_cast<qint64>((2 * percent + half) / (2 * before.Units()));
    return (rounded < 0 ? u"−"_s : u"+"_s) + QString::number(std::abs(rounded)) + u" %"_s;
}

QString DaysText(const Days& days) {
    if (days.Count() == 1) return Weekday(days.first.dayOfWeek()) + u' ' + values::DateText(days.first);
    if (days == upkeep::MonthOf(days.first)) return MonthText(days.first);
    if (days == YearOf(days.first)) return QString::number(days.first.year());
    return Words::tr("%1 to %2").arg(values::DateText(days.first), values::DateText(days.last));
}

QString MonthText(QDate day) {
    return values::UserLocale().standaloneMonthName(day.month()) + u' ' + QString::number(day.year());
}

QString DaysBeforeText(const Days& days) {
    const bool hasName = days.Count() == 1 || days == upkeep::MonthOf(days.first) || days == YearOf(days.first);
    return hasName ? DaysText(upkeep::DaysBefore(days)) : BeforeName(days);
}

}  // namespace manager
