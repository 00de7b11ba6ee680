#include "upkeep/Overview.h"

#include <algorithm>

#include "upkeep/OverviewReader.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

const auto InvoicesQuery =
    u"SELECT DateSold, TimeSold, CashAmount, TaxTotal, CashierID, CashierName FROM Invoices WHERE "_s;
const auto FirstSaleQuery = u"SELECT Min(DateSold) FROM Invoices"_s;
const auto LastSaleQuery = u"SELECT Max(DateSold) FROM Invoices"_s;
const auto LastSaleUpToQuery = u"SELECT Max(DateSold) FROM Invoices WHERE DateSold <= #%1#"_s;

QDate DayOf(store::Database& main, const QString& query) {
    auto row = main.OpenSnapshot(query);
    return row.AtEOF() || row[0].IsNull() ? QDate() : row[0].Get().ToDate();
}

Money MoneyOf(const values::Value& value) {
    return value.IsNull() ? Money() : value.ToMoney();
}

bool SoldMore(const GoodsTakings& a, const GoodsTakings& b) {
    return std::tie(b.total, b.pieces, a.code) < std::tie(a.total, a.pieces, b.code);
}

bool SoldLess(const GoodsTakings& a, const GoodsTakings& b) {
    return std::tie(a.total, a.pieces, a.code) < std::tie(b.total, b.pieces, b.code);
}

bool TookMore(const NamedTakings& a, const NamedTakings& b) {
    return std::tie(b.takings.amounts.total, a.id) < std::tie(a.takings.amounts.total, b.id);
}

std::vector<GoodsTakings> FirstOf(std::vector<GoodsTakings> goods, By by, size_t most, bool largest) {
    const auto key = [by](const GoodsTakings& each) { return by == By::Total ? each.total : each.pieces; };
    const auto before = [&](const GoodsTakings& a, const GoodsTakings& b) {
        if (key(a) != key(b)) return largest ? key(a) > key(b) : key(a) < key(b);
        return a.code < b.code;
    };
    const size_t count = std::min(most, goods.size());
    std::ranges::partial_sort(goods, goods.begin() + static_cast<std::ptrdiff_t>(count), before);
    goods.resize(count);
    return goods;
}

class Reader {
public:
    Reader(store::Database& main, const OverviewWish& wish) : main_(main), wish_(wish), articles_(main) {
        overview_.days = wish.days;
    }

    Overview Read(const TellOverview& tell) {
        const QDate firstSale = DayOf(main_, FirstSaleQuery);
        if (!overview_.days.IsValid()) overview_.days = AllDays(firstSale);
        overview_.standing = ReadStanding(main_, wish_.today, firstSale);
        ReadTables();
        overview_.runningOut = ReadRunningOut(main_, articles_, wish_.today, firstSale);
        if (wish_.days.IsValid()) overview_.before = ReadTakingsByDay(main_, DaysBefore(overview_.days));
        bool goesOn = true;
        for (Days month = LastOf(overview_.days.last); goesOn && month.IsValid();
             month = LastOf(month.first.addDays(-1))) {
            ReadInvoices(month);
            ReadLines(main_, month, [this](const QString& code, const QString& tax, Money pieces, const Amounts& sold) {
                articles_.Add(code, pieces, sold.total);
                if (const Place place = taxes_.Find(tax); place != Nowhere) overview_.taxes[place].amounts += sold;
            });
            overview_.daysRead = month.first.daysTo(overview_.days.last) + 1;
            if (tell) goesOn = tell(InOrder());
        }
        if (goesOn) overview_.daysRead = overview_.days.Count();
        return InOrder();
    }

private:
    Days AllDays(QDate firstSale) {
        if (!firstSale.isValid()) return {wish_.today, wish_.today};
        return {std::min(firstSale, wish_.today), std::max(DayOf(main_, LastSaleQuery), wish_.today)};
    }

    // The last month up to a day, or the part of it that was asked for; months without a sale are passed over.
    Days LastOf(QDate day) {
        if (day < overview_.days.first) return {};
        const QDate sold = DayOf(main_, LastSaleUpToQuery.arg(day.toString(u"MM-dd-yyyy"_s)));
        if (!sold.isValid() || sold < overview_.days.first) return {};
        return {std::max(MonthOf(sold).first, overview_.days.first), std::min(MonthOf(sold).last, overview_.days.last)};
    }

    void ReadTables() {
        auto taxes = main_.OpenSnapshot(u"SELECT TaxID, Name, Percent FROM Tax"_s);
        for (auto& tax : taxes) {
            const QString id = tax[0].TextOrEmpty();
            if (taxes_.FindOrAdd(id) == overview_.taxes.size())
                overview_.taxes.push_back({id, tax[1].TextOrEmpty(), MoneyOf(tax[2].Get()), {}});
        }
        auto users = main_.OpenSnapshot(u"SELECT UserID, UserName FROM Users"_s);
        for (auto& user : users) cashierNames_[user[0].TextOrEmpty().toCaseFolded()] = user[1].TextOrEmpty();
        auto tabs = main_.OpenSnapshot(u"SELECT TabControl, TabDescription FROM TabControl ORDER BY TabControl"_s);
        for (auto& tab : tabs) tabNames_.push_back(tab[1].TextOrEmpty());
    }

    void ReadInvoices(const Days& days) {
        store::Listing rows = main_.ReadListing(InvoicesQuery + WithinDays(days));
        const qint64 count = rows.WaitFor(0);
        for (qint64 row = 0; row < count; ++row) {
            const Takings takings{{MoneyOf(rows.At(row, 2)), MoneyOf(rows.At(row, 3))}, 1};
            const QDate day = rows.At(row, 0).ToDate();
            overview_.takings += takings;
            overview_.byDay[day] += takings;
            if (const values::Value time = rows.At(row, 1); !time.IsNull()) {
                Hours& hours = overview_.byWeekday[static_cast<size_t>(day.dayOfWeek() - 1)];
                hours[static_cast<size_t>(time.ToTime().hour())] += takings.amounts.total;
            }
            CashierOf(rows, row).takings += takings;
        }
    }

    NamedTakings& CashierOf(const store::Listing& rows, qint64 row) {
        const QString id = rows.At(row, 4).TextOrEmpty();
        const Place place = cashiers_.FindOrAdd(id);
        if (place == cashierList_.size()) {
            const QString name = cashierNames_.value(id.toCaseFolded());
            cashierList_.push_back({id, name.isEmpty() ? rows.At(row, 5).TextOrEmpty() : name, {}});
        }
        return cashierList_[place];
    }

    // As it is shown, while the rest is still being read.
    Overview InOrder() {
        articles_.CountParts();
        Overview shown = overview_;
        std::vector<NamedTakings> groups(tabNames_.size());
        for (size_t tab = 0; tab < groups.size(); ++tab) groups[tab] = {QString::number(tab), tabNames_[tab], {}};
        groups.push_back({{}, wish_.noGroup, {}});
        for (const Article& article : articles_.List()) {
            groups[TabOf(article, tabNames_.size())].takings.amounts.total += article.sold.total;
            if (article.sold.pieces != Money() || article.sold.total != Money()) shown.goods.push_back(article.sold);
            if (article.isKept && !article.isComposed && article.stock > Money() && article.taken == Money())
                shown.idle.push_back(article.sold);
        }
        for (GoodsTakings& goods : shown.goods)
            if (goods.name.isEmpty()) goods.name = goods.code;
        std::erase_if(groups, [](const auto& group) { return group.takings.amounts.total == Money(); });
        std::erase_if(shown.taxes, [](const auto& tax) { return tax.amounts == Amounts(); });
        shown.groups = std::move(groups);
        shown.cashiers = cashierList_;
        std::ranges::sort(shown.goods, SoldMore);
        std::ranges::sort(shown.idle, SoldLess);
        std::ranges::sort(shown.groups, TookMore);
        std::ranges::sort(shown.cashiers, TookMore);
        return shown;
    }

    store::Database& main_;
    const OverviewWish& wish_;
    Overview overview_;
    Articles articles_;
    KeyPlaces taxes_, cashiers_;
    std::vector<NamedTakings> cashierList_;
    QHash<QString, QString> cashierNames_;
    std::vector<QString> tabNames_;
};

}  // namespace

Takings& Takings::operator+=(const Takings& other) {
    amounts += other.amounts;
    invoices += other.invoices;
    return *this;
}

Days MonthOf(QDate day) {
    return {{day.year(), day.month(), 1}, {day.year(), day.month(), day.daysInMonth()}};
}

Days DaysBefore(const Days& days) {
    const QDate last = days.first.addDays(-1);
    if (days == MonthOf(days.first)) return MonthOf(last);
    if (days.first.dayOfYear() == 1 && days.last == QDate(days.first.year(), 12, 31))
        return {days.first.addYears(-1), last};
    return {days.first.addDays(-days.Count()), last};
}

std::vector<GoodsTakings> Best(const std::vector<GoodsTakings>& goods, By by, size_t most) {
    return FirstOf(goods, by, most, true);
}

std::vector<GoodsTakings> Least(const std::vector<GoodsTakings>& goods, By by, size_t most) {
    return FirstOf(goods, by, most, false);
}

Overview ReadOverview(store::Database& main, const OverviewWish& wish, const TellOverview& tell) {
    return Reader(main, wish).Read(tell);
}

}  // namespace upkeep
