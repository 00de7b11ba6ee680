#include <map>

#include "upkeep/Check.h"
#include "upkeep/ValueText.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

// All periods that one End Report closed, or all that are open.
struct Span {
    QString name;
    QDate day;
    Money takings;
    Amounts invoices;
    Amounts lines;
    std::map<qint64, int> numbers;  // how often each stands on an invoice
    qint64 count = 0;
};

QString NameOf(const Period& period) {
    if (!period.isClosed) return u"Open period"_s;
    return period.endReport == 0 ? u"Closed without an End Report"_s : u"End Report %1"_s.arg(period.endReport);
}

QString Range(qint64 first, qint64 last) {
    return first == last ? QString::number(first) : u"%1-%2"_s.arg(first).arg(last);
}

// Spans in the order of their closing, the open one last.
class Spans {
public:
    explicit Spans(const SalesBook& book) {
        for (const Period& period : book.periods) AddPeriod(period);
        for (const InvoiceRow& row : book.rows)
            if (row.period != Nowhere) AddRow(*ofPeriod_[row.period], row);
        for (const Invoice& invoice : book.invoices)
            if (invoice.period != Nowhere) ofPeriod_[invoice.period]->lines += invoice.sumOfLines;
    }

    const auto& InOrder() const { return spans_; }

private:
    void AddPeriod(const Period& period) {
        Span& span = spans_[{!period.isClosed, period.isClosed ? period.endReport : 0}];
        span.name = NameOf(period);
        span.day = period.day;
        span.takings += period.takings;
        ofPeriod_.push_back(&span);
    }

    static void AddRow(Span& span, const InvoiceRow& row) {
        ++span.count;
        span.invoices += row.amounts;
        bool isNumber = false;
        const qint64 number = row.number.toLongLong(&isNumber);
        if (isNumber) ++span.numbers[number];
    }

    std::map<std::pair<bool, qint64>, Span> spans_;  // by whether it is open, then by the End Report
    std::vector<Span*> ofPeriod_;
};

// The numbers left out from the one expected on.
QStringList Gaps(const Span& span, qint64 expected) {
    QStringList gaps;
    for (const auto& [number, times] : span.numbers) {
        if (number > expected) gaps.append(Range(expected, number - 1));
        expected = number + 1;
    }
    return gaps;
}

QStringList Doubles(const Span& span) {
    QStringList doubles;
    for (const auto& [number, times] : span.numbers)
        if (times > 1) doubles.append(QString::number(number));
    return doubles;
}

PeriodFact FactOf(bool isOpen, qint64 endReport, const Span& span, qint64 expected) {
    return {.isOpen = isOpen,
            .endReport = endReport,
            .day = span.day,
            .invoices = span.count,
            .total = span.invoices.total,
            .tax = span.invoices.tax,
            .linesDiffer = span.invoices.total != span.lines.total,
            .taxDiffers = span.invoices.tax != span.lines.tax,
            .takingsDiffer = span.invoices.total != span.takings,
            .leftOut = Gaps(span, expected),
            .twice = Doubles(span)};
}

// What doesn't agree with the invoices, and the numbers that don't run on.
QStringList Differences(const Span& span, const PeriodFact& fact) {
    QStringList differences;
    if (fact.linesDiffer) differences.append(u"lines %1"_s.arg(ShownAmount(span.lines.total)));
    if (fact.taxDiffers) differences.append(u"tax of the lines %1"_s.arg(ShownAmount(span.lines.tax)));
    if (fact.takingsDiffer) differences.append(u"takings %1"_s.arg(ShownAmount(span.takings)));
    if (!fact.leftOut.isEmpty()) differences.append(u"numbers left out %1"_s.arg(FirstFew(fact.leftOut)));
    if (!fact.twice.isEmpty()) differences.append(u"numbers twice %1"_s.arg(FirstFew(fact.twice)));
    return differences;
}

QString Head(const Span& span) {
    const QString day = span.day.isValid() ? u" of "_s + span.day.toString(Qt::ISODate) : QString();
    if (span.count == 0) return span.name + day + u": no invoices"_s;
    const QString invoices = span.count == 1 ? u"1 invoice"_s : u"%1 invoices"_s.arg(span.count);
    const QString head = u"%1%2: %3, total %4, tax %5"_s.arg(span.name, day, invoices, ShownAmount(span.invoices.total),
                                                             ShownAmount(span.invoices.tax));
    if (span.numbers.empty()) return head;
    return u"%1, numbers %2"_s.arg(head, Range(span.numbers.begin()->first, span.numbers.rbegin()->first));
}

}  // namespace

void CheckPeriods(const SalesBook& book, Findings& findings) {
    const Spans spans(book);
    qint64 last = -1;
    for (const auto& [key, span] : spans.InOrder()) {
        // A period goes on where the one before it ended, unless its numbers began anew.
        const qint64 first = span.numbers.empty() ? 0 : span.numbers.begin()->first;
        const qint64 expected = last >= 0 && last < first ? last + 1 : first;
        const PeriodFact fact = FactOf(key.first, key.second, span, expected);
        findings.Fact(
            Head(span) + (fact.Agrees() ? u"; all agrees"_s : u"; differs: "_s + Differences(span, fact).join(u", ")),
            fact);
        if (!span.numbers.empty()) last = span.numbers.rbegin()->first;
    }
}

}  // namespace upkeep
