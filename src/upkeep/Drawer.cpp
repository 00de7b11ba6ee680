#include "upkeep/Drawer.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

const auto CashQuery =
    u"SELECT Sum(Invoices.CashAmount), Sum(Invoices.CheckAmount)"
    u" FROM Sales INNER JOIN Invoices ON Sales.SalesID = Invoices.SalesID WHERE "_s;
const auto OfOpenPeriods = u"Sales.Closed = False"_s;
const auto OfEndReport = u"Sales.Closed = True AND Sales.Grupni = %1"_s;
const auto EndReportsQuery = u"SELECT Grupni, Max(DateStoped) FROM Sales WHERE Closed = True GROUP BY Grupni"_s;

constexpr QByteArrayView CashRecord = "I,1,________,_,__;";
constexpr QByteArrayView DailyReport = "Z,1,______,_,__;";

// An amount with two decimals behind whatever separator; nothing for what is none.
Money AmountOf(QByteArrayView text) {
    constexpr qint64 unitsOfACent = Money::Scale / 100;
    QByteArray digits;
    for (const char c : text)
        if ((c >= '0' && c <= '9') || c == '-') digits += c;
    bool isNumber = false;
    const qint64 cents = digits.toLongLong(&isNumber);
    qint64 units = 0;
    if (!isNumber || __builtin_mul_overflow(cents, unitsOfACent, &units)) return {};
    return Money::FromUnits(units);
}

}  // namespace

QList<DrawerPeriod> DrawerPeriods(store::Database& main, qsizetype endReports) {
    QList<DrawerPeriod> periods;
    auto reports = main.OpenSnapshot(EndReportsQuery);
    for (auto& report : reports)
        if (!report[0].IsNull() && report[0].Whole() > 0)
            periods << DrawerPeriod{report[0].Whole(), report[1].IsNull() ? QDate() : report[1].Get().ToDate()};
    std::ranges::sort(periods, std::greater(), &DrawerPeriod::endReport);
    periods.resize(std::min(periods.size(), endReports));
    periods.prepend({});
    return periods;
}

Money ReadCashSold(store::Database& main, qint64 endReport) {
    auto row = main.OpenSnapshot(CashQuery + (endReport == 0 ? OfOpenPeriods : OfEndReport.arg(endReport)));
    return row[0].MoneyOrZero() - row[1].MoneyOrZero();
}

FiscalCash ReadFiscalCash(QIODevice& commands) {
    constexpr qint64 longestLine = 4096;
    FiscalCash cash;
    for (QByteArray line = commands.readLine(longestLine); !line.isEmpty(); line = commands.readLine(longestLine)) {
        if (line.startsWith(DailyReport)) cash = {};
        if (!line.startsWith(CashRecord)) continue;
        const QByteArrayList fields = line.sliced(CashRecord.size()).split(';');
        if (fields.size() < 2) continue;
        (fields[0] == "1" ? cash.takenOut : cash.putIn) += AmountOf(fields[1]);
    }
    return cash;
}

}  // namespace upkeep
