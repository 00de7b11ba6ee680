#include "upkeep/Drawer.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

const auto CashQuery =
    u"SELECT Sum(Invoices.CashAmount), Sum(Invoices.CheckAmount), Count(Invoices.InvoiceID)"
    u" FROM Sales INNER JOIN Invoices ON Sales.SalesID = Invoices.SalesID WHERE Sales.Closed = False"_s;

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

CashSold ReadCashSold(store::Database& main) {
    auto row = main.OpenSnapshot(CashQuery);
    const auto money = [&](int column) { return row[column].IsNull() ? Money() : row[column].Money(); };
    return {money(0) - money(1), row[2].Whole()};
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
