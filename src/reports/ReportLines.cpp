#include "reports/ReportLines.h"

#include "core/dbModule.h"
#include "values/Clock.h"
#include "values/DateText.h"
#include "values/Language.h"

using values::Paper;

namespace {

constexpr int LineWidth = 40;
constexpr int SumWidth = 10;

const QString Rule(LineWidth, u'-');

// One sum ends its line at the right edge, several stand in columns.
QString TotalLine(const QString& caption, const QStringList& sums) {
    if (sums.size() == 1) return PadLeft(LineWidth, caption + sums.first());
    QString line = caption;
    for (const QString& sum : sums) line += PadLeft(SumWidth, sum);
    return line;
}

QString PrintedLine() {
    const QDateTime now = values::Now();
    //: at most 15 columns without %1 and %2, date and time
    return Paper::tr("Printed:%1 %2").arg(values::DateText(now.date()), values::TimeText(now.time()));
}

}  // namespace

QString ItemLine(const PrintFields& fields, const forms::ListView& list, int row) {
    return FilledLine(fields, [&list, row](int column) { return list.Text(row, column); });
}

QStringList ReportLines(const ReportLayout& layout, const QString& period, const forms::ListView& list,
                        const QStringList& sums) {
    QStringList lines = layout.title;
    lines << period << (layout.tellsTime ? PrintedLine() : QString());
    lines << Rule << layout.head << Rule;
    for (int row = 0; row < list.Count(); ++row) {
        for (const auto& fields : layout.item) lines << ItemLine(fields, list, row);
    }
    lines << Rule;
    if (!layout.total.isEmpty()) lines << TotalLine(layout.total, sums);
    return lines << layout.foot;
}
