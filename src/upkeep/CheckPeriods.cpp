#include <map>

#include "upkeep/Check.h"
#include "upkeep/ValueText.h"
#include "upkeep/Words.h"

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
    if (!period.isClosed) return Words::tr("Open period");
    return period.endReport == 0 ? Words::tr("Closed without an End Report")
                                 : Words::tr("End Report %1").arg(period.endReport);
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
    if (fact.linesDiffer) differences.append(Words::tr("lines %1").arg(ShownAmount(span.lines.total)));
    if (fact.taxDiffers) differences.append(Words::tr("tax of the lines %1").arg(ShownAmount(span.lines.tax)));
    if (fact.takingsDiffer) differences.append(Words::tr("takings %1").arg(ShownAmount(span.takings)));
    if (!fact.leftOut.isEmpty()) differences.append(Words::tr("numbers left out %1").arg(FirstFew(fact.leftOut)));
    if (!fact.twice.isEmpty()) differences.append(Words::tr("numbers twice %1").arg(FirstFew(fact.twice)));
    return differences;
}

QString Head(const Span& span) {
    const QString name =
        span.day.isValid() ? Words::tr("%1 of %2").arg(span.name, span.day.toString(Qt::ISODate)) : span.name;
    if (span.count == 0) return Words::tr("%1: no invoices").arg(name);
    const QString invoices =
        span.count == 1 ? Words::tr("%1: 1 invoice, total %2, tax %3")
                        : Words::tr("%1: %n invoices, total %2, tax %3", nullptr, static_cast<int>(span.count));
    const QString head = invoices.arg(name, ShownAmount(span.invoices.total), ShownAmount(span.invoices.tax));
    if (span.numbers.empty()) return head;
    return Words::tr("%1, numbers %2").arg(head, Range(span.numbers.begin()->first, span.numbers.rbegin()->first));
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
        findings.Fact(fact.Agrees() ? Words::tr("%1; all agrees").arg(Head(span))
                                    : Words::tr("%1; differs: %2").arg(Head(span), Differences(span, fact).join(u", ")),
                      fact);
        if (!span.numbers.empty()) last = span.numbers.rbegin()->first;
    }
}

}  // namespace upkeep
