#include "upkeep/OverviewReader.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

const auto TakingsQuery =
    u"SELECT DateSold, Sum(CashAmount), Sum(TaxTotal), Count(*) FROM Invoices WHERE %1 GROUP BY DateSold"_s;
const auto LinesQuery =
    u"SELECT SalesDetails.ProdCode, SalesDetails.TaxID, SalesDetails.QtySold, SalesDetails.Amount,"
    u" SalesDetails.TaxAmount FROM Invoices INNER JOIN SalesDetails ON Invoices.InvoiceID = SalesDetails.InvoiceID"
    u" WHERE %1"_s;

constexpr int WeekdaysOfMean = 4;

Money MoneyOf(const store::Listing& rows, qint64 row, int column) {
    const values::Value value = rows.At(row, column);
    return value.IsNull() ? Money() : value.ToMoney();
}

Takings On(const TakingsByDay& days, QDate day) {
    const auto found = days.find(day);
    return found == days.end() ? Takings() : found->second;
}

Takings SumOf(const TakingsByDay& byDay, const Days& days) {
    Takings sum;
    for (auto day = byDay.lower_bound(days.first); day != byDay.end() && day->first <= days.last; ++day)
        sum += day->second;
    return sum;
}

// Halves away from zero.
Money Quotient(Money dividend, qint64 divisor) {
    const auto twice = static_cast<__int128>(dividend.Units()) * 2;
    return Money::FromUnits(static_cast<qint64>((twice + (twice < 0 ? -divisor : divisor)) / (2 * divisor)));
}

}  // namespace

QString WithinDays(const Days& days, const QString& field) {
    const auto form = u"MM-dd-yyyy"_s;
    return u"%1 >= #%2# AND %1 <= #%3#"_s.arg(field, days.first.toString(form), days.last.toString(form));
}

TakingsByDay ReadTakingsByDay(store::Database& main, const Days& days) {
    TakingsByDay byDay;
    store::Listing rows = main.ReadListing(TakingsQuery.arg(WithinDays(days)));
    const qint64 count = rows.WaitFor(0);
    for (qint64 row = 0; row < count; ++row)
        byDay[rows.At(row, 0).ToDate()] = {{MoneyOf(rows, row, 1), MoneyOf(rows, row, 2)}, rows.At(row, 3).ToWhole()};
    return byDay;
}

void ReadLines(store::Database& main, const Days& days, const AddLines& add) {
    store::Listing rows = main.ReadListing(LinesQuery.arg(WithinDays(days, u"Invoices.DateSold"_s)));
    const qint64 count = rows.WaitFor(0);
    for (qint64 row = 0; row < count; ++row)
        add(rows.At(row, 0).TextOrEmpty(), rows.At(row, 1).TextOrEmpty(), MoneyOf(rows, row, 2),
            {MoneyOf(rows, row, 3), MoneyOf(rows, row, 4)});
}

Standing ReadStanding(store::Database& main, QDate today, QDate firstSale) {
    const Days month = MonthOf(today);
    const Days monthBefore = DaysBefore(month);
    const QDate first = std::min(monthBefore.first, today.addDays(-7 * WeekdaysOfMean));
    const TakingsByDay byDay = ReadTakingsByDay(main, {first, today});
    Standing standing;
    standing.today = On(byDay, today);
    standing.weekBefore = On(byDay, today.addDays(-7));
    Money sum;
    for (int week = 1; week <= WeekdaysOfMean; ++week) {
        const QDate day = today.addDays(-7 * week);
        if (!firstSale.isValid() || day < firstSale) break;
        sum += On(byDay, day).amounts.total;
        ++standing.weekdays;
    }
    if (standing.weekdays > 0) standing.weekdayMean = Quotient(sum, standing.weekdays);
    standing.month = SumOf(byDay, {month.first, today});
    standing.monthBefore = SumOf(byDay, monthBefore);
    const QDate sameDay = std::min(monthBefore.first.addDays(today.day() - 1), monthBefore.last);
    standing.monthBeforeToDate = SumOf(byDay, {monthBefore.first, sameDay});
    return standing;
}

Articles::Articles(store::Database& main) {
    store::Listing goods = main.ReadListing(u"SELECT ProdCode, ProdDescription, Unit, Qty, Tab FROM Products"_s);
    for (qint64 row = 0, count = goods.WaitFor(0); row < count; ++row) {
        Article& article = Of(goods.At(row, 0).TextOrEmpty());
        article.sold.name = goods.At(row, 1).TextOrEmpty();
        article.sold.unit = goods.At(row, 2).TextOrEmpty();
        article.stock = MoneyOf(goods, row, 3);
        const values::Value tab = goods.At(row, 4);
        article.tab = tab.IsNull() ? -1 : static_cast<int>(tab.ToWhole());
        article.isKept = true;
    }
    store::Listing parts = main.ReadListing(u"SELECT SIF, CONsif, ConSIFQty FROM ProductsCon"_s);
    for (qint64 row = 0, count = parts.WaitFor(0); row < count; ++row) {
        Of(parts.At(row, 0).TextOrEmpty()).isComposed = true;
        Of(parts.At(row, 1).TextOrEmpty());
        parts_.push_back({places_.Find(parts.At(row, 0).TextOrEmpty()), places_.Find(parts.At(row, 1).TextOrEmpty()),
                          MoneyOf(parts, row, 2)});
    }
}

Article& Articles::Of(const QString& code) {
    const Place place = places_.FindOrAdd(code);
    if (place == list_.size()) list_.emplace_back().sold.code = code;
    return list_[place];
}

void Articles::Add(const QString& code, Money pieces, Money total) {
    Article& article = Of(code);
    article.sold.pieces += pieces;
    article.sold.total += total;
}

void Articles::CountParts() {
    for (Article& article : list_) article.taken = {};
    for (const Part& part : parts_) list_[part.part].taken += part.pieces * list_[part.of].sold.pieces;
}

QStringList Articles::MadeWith(const QString& code) const {
    QStringList codes;
    const Place place = places_.Find(code);
    for (const Part& part : parts_)
        if (part.part == place) codes << list_[part.of].sold.code;
    return codes;
}

size_t TabOf(const Article& article, size_t tabs) {
    return article.tab < 0 ? tabs : std::min(static_cast<size_t>(article.tab / store::PlacesPerTab), tabs);
}

size_t CountTabs(store::Database& main) {
    return static_cast<size_t>(main.OpenSnapshot(u"SELECT Count(*) FROM TabControl"_s)[0].Whole());
}

Days DaysOfPace(QDate today) {
    constexpr int days = 28;
    return {today.addDays(1 - days), today};
}

std::vector<RunningOut> ReadRunningOut(store::Database& main, Articles articles, QDate today, QDate firstSale) {
    const Days pace{std::max(firstSale, DaysOfPace(today).first), today};
    if (!firstSale.isValid() || !pace.IsValid()) return {};
    ReadLines(main, pace, [&](const QString& code, const QString&, Money pieces, const Amounts& amounts) {
        articles.Add(code, pieces, amounts.total);
    });
    articles.CountParts();
    std::vector<RunningOut> list;
    for (const Article& article : articles.List()) {
        const Money taken = article.isComposed ? article.taken : article.sold.pieces + article.taken;
        if (!article.isKept || taken <= Money()) continue;
        RunningOut entry{article.sold, article.stock, 0};
        entry.goods.pieces = Quotient(taken, pace.Count());
        // By what was taken, since the mean of a day is rounded.
        if (article.stock > Money())
            entry.days =
                static_cast<qint64>(static_cast<__int128>(article.stock.Units()) * pace.Count() / taken.Units());
        list.push_back(std::move(entry));
    }
    std::ranges::stable_sort(list, {}, &RunningOut::days);
    return list;
}

}  // namespace upkeep
