#include "upkeep/DrawerCount.h"

#include <QDir>
#include <algorithm>

#include "store/Schema.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

const auto OpenSalesQuery =
    u"SELECT Sum(Invoices.CashAmount) AS Cash FROM Sales INNER JOIN Invoices"
    u" ON Sales.SalesID = Invoices.SalesID WHERE Sales.Closed = False"_s;
const auto EndReportsQuery =
    u"SELECT Grupni, Max(DateStoped) AS Stopped FROM Sales WHERE Closed = True GROUP BY Grupni"_s;
const auto ReportedSalesQuery =
    u"SELECT Sum(Invoices.CashAmount) AS Cash FROM Sales INNER JOIN Invoices"
    u" ON Sales.SalesID = Invoices.SalesID WHERE Sales.Grupni = %1"_s;
const auto CountsQuery = u"SELECT * FROM DrawerCounts"_s;

const store::Schema& ManagerSchema() {
    using store::Type;
    static const store::Schema schema{.name = u"manager"_s,
                                      .version = 1,
                                      .tables = {{u"DrawerCounts"_s,
                                                  {{.name = u"ID"_s, .type = Type::Whole, .selfNumbering = true},
                                                   {u"CountedDate"_s, Type::Date},
                                                   {u"CountedTime"_s, Type::Time},
                                                   {u"UserName"_s, Type::Text},
                                                   {u"Period"_s, Type::Text},
                                                   {u"Pieces"_s, Type::Text},
                                                   {u"Found"_s, Type::Money},
                                                   {u"Sales"_s, Type::Money},
                                                   {u"PutIn"_s, Type::Money},
                                                   {u"TakenOut"_s, Type::Money},
                                                   {u"Remark"_s, Type::Text}},
                                                  {}}}};
    return schema;
}

Money SumOf(store::Database& main, const QString& query) {
    auto row = main.OpenSnapshot(query);
    return row.AtEOF() ? Money() : row[0].MoneyOrZero();
}

}  // namespace

std::vector<DrawerPeriod> DrawerPeriods(store::Database& main, int endReports) {
    std::vector<DrawerPeriod> periods;
    auto reports = main.OpenSnapshot(EndReportsQuery);
    for (auto& report : reports)
        if (!report[0].IsNull())
            periods.push_back({.endReport = static_cast<int>(report[0].Whole()),
                               .closed = report[1].IsNull() ? QDate() : report[1].Get().ToDate()});
    std::ranges::sort(periods, std::greater(), &DrawerPeriod::endReport);
    if (periods.size() > static_cast<size_t>(endReports)) periods.resize(static_cast<size_t>(endReports));
    for (DrawerPeriod& period : periods) period.sales = SumOf(main, ReportedSalesQuery.arg(period.endReport));
    periods.insert(periods.begin(), DrawerPeriod{.sales = SumOf(main, OpenSalesQuery)});
    return periods;
}

std::unique_ptr<store::Database> OpenManagerStore(const QString& registerFolder) {
    const QString path = QDir(registerFolder).filePath(ManagerFile);
    return QFileInfo::exists(path) ? store::Database::Open(path, ManagerSchema())
                                   : store::Database::Create(path, ManagerSchema());
}

void StoreCount(store::Database& manager, const DrawerCount& count) {
    auto counts = manager.OpenRecordset(CountsQuery);
    counts.AddNew();
    counts[u"CountedDate"] = count.counted.date();
    counts[u"CountedTime"] = count.counted.time();
    counts[u"UserName"] = count.user;
    counts[u"Period"] = count.period;
    counts[u"Pieces"] = count.pieces;
    counts[u"Found"] = count.found;
    counts[u"Sales"] = count.sales;
    counts[u"PutIn"] = count.putIn;
    counts[u"TakenOut"] = count.takenOut;
    counts[u"Remark"] = count.remark;
    counts.Update();
}

std::vector<DrawerCount> ReadCounts(store::Database& manager) {
    std::vector<DrawerCount> counts;
    auto rows = manager.OpenSnapshot(CountsQuery);
    for (auto& row : rows)
        counts.push_back({.counted = QDateTime(row[u"CountedDate"].Get().ToDate(), row[u"CountedTime"].Get().ToTime()),
                          .user = row[u"UserName"].TextOrEmpty(),
                          .period = row[u"Period"].TextOrEmpty(),
                          .pieces = row[u"Pieces"].TextOrEmpty(),
                          .found = row[u"Found"].Money(),
                          .sales = row[u"Sales"].Money(),
                          .putIn = row[u"PutIn"].Money(),
                          .takenOut = row[u"TakenOut"].Money(),
                          .remark = row[u"Remark"].TextOrEmpty()});
    std::ranges::reverse(counts);
    return counts;
}

std::vector<Money> Denominations(const QString& currency) {
    struct Known {
        const char16_t* currency;
        std::initializer_list<qint64> hundredths;
    };
    static const Known all[] = {
        {u"KM", {20000, 10000, 5000, 2000, 1000, 500, 200, 100, 50, 20, 10, 5}},
        {u"EUR", {20000, 10000, 5000, 2000, 1000, 500, 200, 100, 50, 20, 10, 5, 2, 1}},
        {u"GBP", {5000, 2000, 1000, 500, 200, 100, 50, 20, 10, 5, 2, 1}},
        {u"CHF", {100000, 20000, 10000, 5000, 2000, 1000, 500, 200, 100, 50, 20, 10, 5}},
        {u"RSD", {500000, 200000, 100000, 50000, 20000, 10000, 5000, 2000, 1000, 500, 200, 100}},
        {u"USD", {10000, 5000, 2000, 1000, 500, 100, 50, 25, 10, 5, 1}},
        {u"", {50000, 20000, 10000, 5000, 2000, 1000, 500, 200, 100, 50, 20, 10, 5, 1}}};
    const auto known = std::ranges::find_if(all, [&currency](const Known& one) {
        const QStringView name(one.currency);
        return name.isEmpty() || currency.trimmed().compare(name, Qt::CaseInsensitive) == 0 ||
               (name == u"KM" && currency.trimmed().compare(u"BAM"_s, Qt::CaseInsensitive) == 0);
    });
    std::vector<Money> denominations;
    for (const qint64 hundredths : known->hundredths) denominations.push_back(Money::FromUnits(hundredths * 100));
    return denominations;
}

}  // namespace upkeep
