#pragma once

#include "manager/charts/ColumnChart.h"
#include "manager/charts/HeatMap.h"
#include "manager/charts/RankList.h"
#include "upkeep/Overview.h"

// What the charts of the overview show, from its figures.
namespace manager {

// What one column stands for: an hour of a day, a day, a month or a year.
struct Span {
    enum class Kind { Hour, Day, Month, Year };
    Kind kind;
    upkeep::Days days;
    int hour = 0;
};
// As fine as can be read: hours of one day, days of two months, months of three years.
std::vector<Span> SpansOf(const upkeep::Days& days);
QString NameOf(const Span& span);

ColumnChart::Content TakingsContent(const upkeep::Overview& overview, const std::vector<Span>& spans);
// From the first hour in which something was sold to the last.
struct HoursShown {
    int first = 0;
    int last = -1;
};
HoursShown HoursOf(const upkeep::Overview& overview);
HeatMap::Content HoursContent(const upkeep::Overview& overview, HoursShown hours);
RankList::Content GoodsContent(const std::vector<upkeep::GoodsTakings>& goods, upkeep::By by);
RankList::Content NamedContent(const QString& heading, const std::vector<upkeep::NamedTakings>& list,
                               bool withInvoices);
RankList::Content TaxesContent(const std::vector<upkeep::TaxTakings>& taxes);
RankList::Content RunningOutContent(const std::vector<upkeep::RunningOut>& list);

// By how much in percent, "+12 %"; empty where there was nothing before.
QString ChangeText(values::Money now, values::Money before);
QString DaysText(const upkeep::Days& days);
QString MonthText(QDate day);
// What the days before are called, which is short: their name, or how far they lie back.
QString DaysBeforeText(const upkeep::Days& days);

}  // namespace manager
