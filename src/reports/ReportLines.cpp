#include "reports/ReportLines.h"

#include "core/dbModule.h"
#include "values/Clock.h"
#include "values/DateText.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int LineWidth = 40;
constexpr int SumWidth = 10;

const QString Rule(LineWidth, u'-');

QString FieldText(const PrintField& field, const forms::ListView& list, int row) {
    QString text = list.Text(row, field.column);
    if (!field.date.isEmpty()) text = values::Format(text, field.date);
    text.prepend(field.before);
    return field.side == PrintField::Side::Left ? PadRight(field.width, text) : PadLeft(field.width, text);
}

// One sum ends its line at the right edge, several stand in columns.
QString TotalLine(const QString& caption, const QStringList& sums) {
    if (sums.size() == 1) return PadLeft(LineWidth, caption + sums.first());
    QString line = caption;
    for (const QString& sum : sums) line += PadLeft(SumWidth, sum);
    return line;
}

QString PrintedLine() {
    const QDateTime now = values::Now();
    return u"Printed:"_s + values::DateText(now.date()) + u' ' + values::TimeText(now.time());
}

}  // namespace

QString ItemLine(const std::vector<PrintField>& fields, const forms::ListView& list, int row) {
    QString line;
    for (const PrintField& field : fields) line += FieldText(field, list, row);
    return line;
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
