#include "upkeep/DayTotals.h"

#include <QMap>
#include <algorithm>

#include "store/StoreError.h"
#include "upkeep/ValueText.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto DaysQuery =
    u"SELECT DateSold, Count(*) AS N, Sum(CashAmount) AS Cash, Sum(TaxTotal) AS Tax FROM Invoices GROUP BY DateSold"_s;

values::Money MoneyOrNothing(const values::Value& value) {
    return value.IsNull() ? values::Money() : value.ToMoney();
}

DayTotal FromValues(const values::Value& day, const values::Value& invoices, const values::Value& takings,
                    const values::Value& tax) {
    return {.day = day.IsNull() ? QDate() : day.ToDate(),
            .invoices = invoices.ToWhole(),
            .takings = MoneyOrNothing(takings),
            .tax = MoneyOrNothing(tax)};
}

}  // namespace

DayTotals ReadDayTotals(store::Database& main) {
    DayTotals days;
    auto rows = main.OpenSnapshot(DaysQuery);
    for (auto& row : rows) days += FromValues(row[0].Get(), row[1].Get(), row[2].Get(), row[3].Get());
    std::ranges::sort(days, {}, &DayTotal::day);
    return days;
}

QByteArray WriteDayTotals(const DayTotals& days) {
    QByteArray lines;
    for (const DayTotal& day : days) {
        const values::Value date = day.day.isValid() ? values::Value(day.day) : values::Value();
        lines += WriteValue(date) + '\t' + WriteValue(day.invoices) + '\t' + WriteValue(day.takings) + '\t' +
                 WriteValue(day.tax) + '\n';
    }
    return lines;
}

DayTotals ParseDayTotals(const QByteArray& lines) {
    DayTotals days;
    for (const QByteArray& line : lines.split('\n')) {
        if (line.isEmpty()) continue;
        const QByteArrayList cells = line.split('\t');
        if (cells.size() != 4) throw store::StoreError(store::NotAStore, u"The totals of the days can't be read."_s);
        days += FromValues(ReadValue(cells[0], store::Type::Date), ReadValue(cells[1], store::Type::Whole),
                           ReadValue(cells[2], store::Type::Money), ReadValue(cells[3], store::Type::Money));
    }
    return days;
}

QList<DayInTwo> Compare(const DayTotals& one, const DayTotals& other) {
    QMap<QDate, DayInTwo> days;
    for (const auto& [totals, side] : {std::pair{&one, &DayInTwo::one}, std::pair{&other, &DayInTwo::other}})
        for (const DayTotal& total : *totals) {
            DayInTwo& day = days[total.day];
            day.one.day = day.other.day = total.day;
            day.*side = total;
        }
    QList<DayInTwo> sorted = days.values();
    std::ranges::reverse(sorted);
    std::ranges::stable_partition(sorted, [](const DayInTwo& day) { return !day.IsSame(); });
    return sorted;
}

bool AreSameBefore(QDate day, const DayTotals& one, const DayTotals& other) {
    const auto before = [day](const DayTotals& totals) {
        DayTotals earlier;
        std::ranges::copy_if(totals, std::back_inserter(earlier), [day](const DayTotal& at) { return at.day < day; });
        return earlier;
    };
    return before(one) == before(other);
}

}  // namespace upkeep
