#pragma once

#include <QDate>
#include <array>
#include <functional>
#include <map>
#include <vector>

#include "store/Database.h"
#include "upkeep/SalesBook.h"

// How a shop does, in figures. Sales are counted as the till's reports count them: by the day on the invoice, goods and
// taxes by the lines under it, a tax only while it is in the table of taxes. Sums are exact.
namespace upkeep {

// From the first day to the last, both counted.
struct Days {
    QDate first;
    QDate last;

    qint64 Count() const { return first.daysTo(last) + 1; }
    bool IsValid() const { return first.isValid() && last.isValid() && first <= last; }
    bool operator==(const Days&) const = default;
};

// The whole month of a day, and the days before those given that are to be compared with them: of a whole month the
// month before, of a whole year the year before, else as many days.
Days MonthOf(QDate day);
Days DaysBefore(const Days& days);
// The last four weeks, by which it is reckoned how long the stock lasts.
Days DaysOfPace(QDate today);

struct Takings {
    Amounts amounts;
    qint64 invoices = 0;

    Takings& operator+=(const Takings& other);
    bool operator==(const Takings&) const = default;
};
using TakingsByDay = std::map<QDate, Takings>;

// Today and this month, and what they are measured by. Of the month before it also tells the days up to the one that
// has today's number, or to its end.
struct Standing {
    Takings today;
    Takings weekBefore;
    values::Money weekdayMean;  // of the four such weekdays before today, less those before the shop's first sale
    int weekdays = 0;           // how many these are
    Takings month;
    Takings monthBefore;
    Takings monthBeforeToDate;
};

struct GoodsTakings {
    QString code;
    QString name;
    QString unit;
    values::Money pieces;
    values::Money total;
};

// A cashier, or a tab of the touch table.
struct NamedTakings {
    QString id;
    QString name;
    Takings takings;
};

struct TaxTakings {
    QString id;
    QString name;
    values::Money percent;
    Amounts amounts;
};

// Goods that are sold, directly or as parts of others, and how many days their stock lasts so; none for what is gone.
struct RunningOut {
    GoodsTakings goods;  // pieces that a day takes, on the mean
    values::Money stock;
    qint64 days = 0;
};

using Hours = std::array<values::Money, 24>;

struct Overview {
    Days days;
    Standing standing;
    Takings takings;
    TakingsByDay byDay;
    TakingsByDay before;             // of the days that are compared
    std::array<Hours, 7> byWeekday;  // Monday first
    // Best first.
    std::vector<GoodsTakings> goods;
    std::vector<NamedTakings> groups;
    std::vector<NamedTakings> cashiers;
    std::vector<TaxTakings> taxes;
    // Goods in stock, those first that sold least. Parts that were taken for others are not idle.
    std::vector<GoodsTakings> idle;
    std::vector<RunningOut> runningOut;  // what ends first stands first

    qint64 daysRead = 0;  // of the days asked for, the newest first
};

enum class By { Total, Pieces };
// The first few in that order; of equals the one with the lower code.
std::vector<GoodsTakings> Best(const std::vector<GoodsTakings>& goods, By by, size_t most);
std::vector<GoodsTakings> Least(const std::vector<GoodsTakings>& goods, By by, size_t most);

struct OverviewWish {
    QDate today;
    Days days;        // an invalid one stands for all days of the shop
    QString noGroup;  // what goods are grouped under that are not on the touch table
};

// Reads month by month, the newest first, and tells after each how far it has come; false from `tell` ends it there.
// A Watch on the store can stop it within a month. Each month is of one moment, and tills may sell meanwhile.
using TellOverview = std::function<bool(const Overview&)>;
Overview ReadOverview(store::Database& main, const OverviewWish& wish, const TellOverview& tell = {});

}  // namespace upkeep
