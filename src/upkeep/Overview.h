#pragma once

#include <QDate>
#include <array>
#include <functional>
#include <vector>

#include "store/Database.h"
#include "values/Money.h"

namespace upkeep {

// What was sold in a stretch of time, in takings (CashAmount, tax included) and invoices.
struct Sold {
    values::Money takings = {};
    int invoices = 0;
    Sold& operator+=(const Sold& other);
};

// A name with what belongs to it: a product, a group of the touch table, a cashier, a tax.
struct NamedSold {
    QString key;  // code, number of the tab, name, code of the tax
    QString name;
    values::Money takings = {};
    values::Money pieces = {};
    values::Money tax = {};
    int invoices = 0;
};

struct DaySold {
    QDate day;
    Sold sold;
};

// Goods that run out at the pace of the last weeks.
struct RunningOut {
    QString code;
    QString name;
    values::Money stock = {};
    double perDay = 0;
    int days = 0;  // that it lasts still
};

struct Overview {
    QDate from, to;
    Sold sold;
    std::vector<DaySold> days;                       // each, with and without sales
    std::array<std::array<Sold, 24>, 7> hours = {};  // by weekday, Monday first, and hour
    std::vector<NamedSold> goods;                    // by takings, the best first
    std::vector<NamedSold> groups;
    std::vector<NamedSold> cashiers;
    std::vector<NamedSold> taxes;
};

// To be called now and then with how many of how many days are done; false leaves the work with error 3059.
using DayProgress = std::function<bool(int done, int all)>;

// Everything that was sold from one day to another, both included. Sums agree with the reports of the till: all stored
// invoices count. Read month by month, so that ten years need no more room than one.
Overview ReadOverview(store::Database& main, QDate from, QDate to, const DayProgress& progress = {});

// Today, and what it is to be compared with.
struct TodaysFigures {
    Sold today;
    Sold weekAgo;              // the same weekday of last week, whole
    values::Money meanOfFour;  // of the last four such weekdays
    Sold month;                // this month up to today
    Sold monthBefore;          // the same days of the last one
};
TodaysFigures ReadTodaysFigures(store::Database& main, QDate today);

// Goods with stock that lasts no more than so many days, the shortest first, at the pace of four weeks up to yesterday.
// What was sold of a composition counts for its parts.
std::vector<RunningOut> ReadRunningOut(store::Database& main, QDate today, int within);

// The numbers of the invoices with a line of which a thing holds: its product's code, its tax.
struct LineOfInvoice {
    QString invoice;
    QString code;
    QString tax;
};
std::vector<LineOfInvoice> ReadLines(store::Database& main, QDate from, QDate to);

}  // namespace upkeep
