#include "upkeep/Overview.h"

#include <QHash>
#include <algorithm>
#include <cmath>

#include "upkeep/Words.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

const auto InvoicesQuery =
    u"SELECT DateSold, TimeSold, CashAmount, CashierName FROM Invoices WHERE DateSold BETWEEN %1 AND %2"_s;
const auto LinesQuery =
    u"SELECT SalesDetails.ProdCode, SalesDetails.TaxID, Max(SalesDetails.ProdDescription) AS Name,"
    u" Sum(SalesDetails.Amount) AS Takings, Sum(SalesDetails.QtySold) AS Pieces, Sum(SalesDetails.TaxAmount) AS Tax"
    u" FROM Invoices INNER JOIN SalesDetails ON Invoices.InvoiceID = SalesDetails.InvoiceID"
    u" WHERE DateSold BETWEEN %1 AND %2 GROUP BY SalesDetails.ProdCode, SalesDetails.TaxID"_s;
const auto SoldQuery =
    u"SELECT Sum(CashAmount) AS Takings, Count(*) AS N FROM Invoices WHERE DateSold BETWEEN %1 AND %2"_s;
const auto EachLineQuery =
    u"SELECT SalesDetails.InvoiceID, SalesDetails.ProdCode, SalesDetails.TaxID"
    u" FROM Invoices INNER JOIN SalesDetails ON Invoices.InvoiceID = SalesDetails.InvoiceID"
    u" WHERE DateSold BETWEEN %1 AND %2"_s;

constexpr int PaceDays = 28;

QString Literal(QDate day) {
    return u'#' + day.toString(u"MM-dd-yyyy") + u'#';
}

QString Between(const QString& query, QDate from, QDate to) {
    return query.arg(Literal(from), Literal(to));
}

Sold ReadSold(store::Database& main, QDate from, QDate to) {
    auto row = main.OpenSnapshot(Between(SoldQuery, from, to));
    return {.takings = row[0].MoneyOrZero(), .invoices = static_cast<int>(row[1].Whole())};
}

// Sums by key, in the order in which they first came.
class Sums {
public:
    NamedSold& Of(const QString& key) {
        const auto known = place_.constFind(key);
        if (known != place_.cend()) return sums_[*known];
        place_.insert(key, sums_.size());
        sums_.push_back({.key = key, .name = {}});
        return sums_.back();
    }
    std::vector<NamedSold> BestFirst() && {
        std::ranges::stable_sort(sums_, std::greater(), &NamedSold::takings);
        return std::move(sums_);
    }

private:
    QHash<QString, size_t> place_;
    std::vector<NamedSold> sums_;
};

void Add(NamedSold& sum, const NamedSold& part) {
    sum.takings += part.takings;
    sum.pieces += part.pieces;
    sum.tax += part.tax;
    sum.invoices += part.invoices;
}

// Which group of the touch table a product stands in, and what the groups are called.
struct Groups {
    QHash<QString, int> tabOf;  // by code
    QStringList names;

    explicit Groups(store::Database& main) {
        auto tabs = main.OpenSnapshot(u"SELECT * FROM TabControl"_s);
        for (auto& tab : tabs) names << tab[u"TabDescription"].TextOrEmpty();
        auto products = main.OpenSnapshot(u"SELECT ProdCode, Tab FROM Products WHERE Tab > -1"_s);
        for (auto& product : products)
            tabOf.insert(product[0].TextOrEmpty(), static_cast<int>(product[1].Whole()) / store::PlacesPerTab);
    }
    QString NameOf(int tab) const {
        return tab < 0 ? Words::tr("not on the touch table") : names.value(tab, QString::number(tab + 1));
    }
};

class Reader {
public:
    Reader(store::Database& main, QDate from, QDate to) : main_(main), groups_(main) {
        overview_.from = from;
        overview_.to = to;
        for (QDate day = from; day <= to; day = day.addDays(1)) overview_.days.push_back({.day = day, .sold = {}});
        auto taxes = main.OpenSnapshot(u"SELECT TaxID, Name FROM Tax"_s);
        for (auto& tax : taxes) taxNames_.insert(tax[0].TextOrEmpty(), tax[1].TextOrEmpty());
    }

    void TakeIn(QDate from, QDate to) {
        auto invoices = main_.OpenSnapshot(Between(InvoicesQuery, from, to));
        for (auto& invoice : invoices) TakeInvoice(invoice);
        auto lines = main_.OpenSnapshot(Between(LinesQuery, from, to));
        for (auto& line : lines) TakeLine(line);
    }

    Overview Finish() && {
        overview_.goods = std::move(goods_).BestFirst();
        overview_.groups = std::move(tabs_).BestFirst();
        overview_.cashiers = std::move(cashiers_).BestFirst();
        overview_.taxes = std::move(taxes_).BestFirst();
        return std::move(overview_);
    }

private:
    void TakeInvoice(store::Recordset& invoice) {
        const Sold sold{.takings = invoice[2].MoneyOrZero(), .invoices = 1};
        const QDate day = invoice[0].Get().ToDate();
        overview_.sold += sold;
        overview_.days[static_cast<size_t>(overview_.from.daysTo(day))].sold += sold;
        const int hour = invoice[1].IsNull() ? 0 : invoice[1].Get().ToTime().hour();
        overview_.hours[static_cast<size_t>(day.dayOfWeek() - 1)][static_cast<size_t>(hour)] += sold;
        const QString name = invoice[3].TextOrEmpty();
        NamedSold& cashier = cashiers_.Of(name);
        cashier.name = name;
        Add(cashier, {.key = {}, .name = {}, .takings = sold.takings, .invoices = 1});
    }

    void TakeLine(store::Recordset& line) {
        const QString code = line[0].TextOrEmpty(), tax = line[1].TextOrEmpty();
        const NamedSold part{.key = {},
                             .name = {},
                             .takings = line[3].MoneyOrZero(),
                             .pieces = line[4].MoneyOrZero(),
                             .tax = line[5].MoneyOrZero()};
        NamedSold& product = goods_.Of(code);
        product.name = line[2].TextOrEmpty();
        Add(product, part);
        const int tab = groups_.tabOf.value(code, -1);
        NamedSold& group = tabs_.Of(QString::number(tab));
        group.name = groups_.NameOf(tab);
        Add(group, part);
        NamedSold& rate = taxes_.Of(tax);
        rate.name = taxNames_.value(tax, tax);
        Add(rate, part);
    }

    store::Database& main_;
    const Groups groups_;
    QHash<QString, QString> taxNames_;
    Overview overview_;
    Sums goods_, tabs_, cashiers_, taxes_;
};

// What a day of the last weeks took of each product, parts of compositions in the place of the whole.
QHash<QString, double> PerDay(store::Database& main, QDate today) {
    QHash<QString, double> sold;
    auto lines = main.OpenSnapshot(Between(LinesQuery, today.addDays(-PaceDays), today.addDays(-1)));
    for (auto& line : lines) sold[line[0].TextOrEmpty()] += line[4].IsNull() ? 0 : line[4].Double();
    QMultiHash<QString, std::pair<QString, double>> parts;
    auto compositions = main.OpenSnapshot(u"SELECT SIF, CONsif, ConSIFQty FROM ProductsCon"_s);
    for (auto& part : compositions)
        parts.insert(part[0].TextOrEmpty(), {part[1].TextOrEmpty(), part[2].IsNull() ? 0 : part[2].Double()});
    QHash<QString, double> taken;
    for (auto one = sold.cbegin(); one != sold.cend(); ++one) {
        const auto made = parts.values(one.key());
        if (made.isEmpty()) taken[one.key()] += one.value() / PaceDays;
        for (const auto& [code, quantity] : made) taken[code] += quantity * one.value() / PaceDays;
    }
    return taken;
}

}  // namespace

Sold& Sold::operator+=(const Sold& other) {
    takings += other.takings;
    invoices += other.invoices;
    return *this;
}

Overview ReadOverview(store::Database& main, QDate from, QDate to, const DayProgress& progress) {
    Reader reader(main, from, to);
    const int all = static_cast<int>(from.daysTo(to)) + 1;
    for (QDate begin = from; begin <= to;) {
        if (progress && !progress(static_cast<int>(from.daysTo(begin)), all))
            throw store::StoreError(store::Cancelled, Words::tr("The overview was left."));
        const QDate end = std::min(to, QDate(begin.year(), begin.month(), begin.daysInMonth()));
        reader.TakeIn(begin, end);
        begin = end.addDays(1);
    }
    return std::move(reader).Finish();
}

TodaysFigures ReadTodaysFigures(store::Database& main, QDate today) {
    TodaysFigures figures;
    figures.today = ReadSold(main, today, today);
    figures.weekAgo = ReadSold(main, today.addDays(-7), today.addDays(-7));
    qint64 four = 0;
    for (int week = 1; week <= 4; ++week)
        four += ReadSold(main, today.addDays(-7 * week), today.addDays(-7 * week)).takings.Units();
    figures.meanOfFour = Money::FromUnits(four / 4);
    const QDate first(today.year(), today.month(), 1);
    figures.month = ReadSold(main, first, today);
    figures.monthBefore = ReadSold(main, first.addMonths(-1), today.addMonths(-1));
    return figures;
}

std::vector<RunningOut> ReadRunningOut(store::Database& main, QDate today, int within) {
    const QHash<QString, double> perDay = PerDay(main, today);
    std::vector<RunningOut> out;
    auto products = main.OpenSnapshot(u"SELECT ProdCode, ProdDescription, Qty FROM Products"_s);
    for (auto& product : products) {
        const double pace = perDay.value(product[0].TextOrEmpty());
        const Money stock = product[2].MoneyOrZero();
        if (pace <= 0 || stock <= Money()) continue;
        const double days = static_cast<double>(stock.Units()) / Money::Scale / pace;
        if (days > within) continue;
        out.push_back({.code = product[0].TextOrEmpty(),
                       .name = product[1].TextOrEmpty(),
                       .stock = stock,
                       .perDay = pace,
                       .days = static_cast<int>(std::floor(days))});
    }
    std::ranges::stable_sort(out, {}, &RunningOut::days);
    return out;
}

std::vector<LineOfInvoice> ReadLines(store::Database& main, QDate from, QDate to) {
    std::vector<LineOfInvoice> lines;
    auto rows = main.OpenSnapshot(Between(EachLineQuery, from, to));
    for (auto& row : rows) lines.push_back({row[0].TextOrEmpty(), row[1].TextOrEmpty(), row[2].TextOrEmpty()});
    return lines;
}

}  // namespace upkeep
