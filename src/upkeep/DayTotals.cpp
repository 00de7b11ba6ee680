#include "upkeep/DayTotals.h"

#include <QMap>
#include <algorithm>

#include "store/StoreError.h"
#include "upkeep/ValueText.h"
#include "upkeep/Words.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto DaysQuery =
    u"SELECT DateSold, Count(*) AS N, Sum(CashAmount) AS Cash, Sum(TaxTotal) AS Tax FROM Invoices GROUP BY DateSold"_s;

QDate DayOf(const values::Value& value) {
    return value.IsNull() ? QDate() : value.ToDate();
}

}  // namespace

DayTotals ReadDayTotals(store::Database& main) {
    DayTotals days;
    auto rows = main.OpenSnapshot(DaysQuery);
    for (auto& row : rows)
        days += {.day = DayOf(row[0].Get()),
                 .invoices = row[1].Whole(),
                 .takings = row[2].MoneyOrZero(),
                 .tax = row[3].MoneyOrZero()};
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
        if (cells.size() != 4)
            throw store::StoreError(store::NotAStore, Words::tr("The totals of the days can't be read."));
        days += {.day = DayOf(ReadValue(cells[0], store::Type::Date)),
                 .invoices = ReadValue(cells[1], store::Type::Whole).ToWhole(),
                 .takings = ReadValue(cells[2], store::Type::Money).ToMoney(),
                 .tax = ReadValue(cells[3], store::Type::Money).ToMoney()};
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
