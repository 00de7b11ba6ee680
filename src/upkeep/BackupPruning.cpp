#include "upkeep/BackupPruning.h"

#include <QSet>
#include <algorithm>
#include <array>

namespace upkeep {

namespace {

// A day, a week or a month, as a number of its own.
qint64 DayOf(QDate date) {
    return date.toJulianDay();
}
qint64 WeekOf(QDate date) {
    return date.addDays(1 - date.dayOfWeek()).toJulianDay();
}
qint64 MonthOf(QDate date) {
    return qint64{date.year()} * 12 + date.month();
}

}  // namespace

QList<QDateTime> OutdatedOf(QList<QDateTime> times, const BackupPlan& plan) {
    std::ranges::sort(times, std::greater());
    struct Span {
        qint64 (*of)(QDate date);
        int kept;
        QSet<qint64> seen = {};
    };
    std::array<Span, 3> spans{{{DayOf, plan.days}, {WeekOf, plan.weeks}, {MonthOf, plan.months}}};
    QList<QDateTime> outdated;
    for (const QDateTime& time : std::as_const(times)) {
        bool isKept = time == times.first();
        for (Span& span : spans) {
            const qint64 number = span.of(time.date());
            if (span.seen.contains(number)) continue;
            span.seen.insert(number);
            isKept = isKept || span.seen.size() <= span.kept;
        }
        if (!isKept) outdated += time;
    }
    return outdated;
}

}  // namespace upkeep
