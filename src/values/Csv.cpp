#include "values/Csv.h"

#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

QString SafeText(const QString& text) {
    static const auto beginsFormula = u"=+-@\t\r\n"_s;
    return !text.isEmpty() && beginsFormula.contains(text.front()) ? u'\'' + text : text;
}

QString Cell(const Value& value, QChar separator) {
    // Numbers and dates are the program's own texts: a minus of theirs is one.
    QString text = value.GetKind() == Value::Kind::Text ? SafeText(value.As<QString>()) : value.TextOrEmpty();
    const bool isPlain = std::ranges::none_of(
        text, [separator](QChar c) { return c == separator || c == u'"' || c == u'\r' || c == u'\n'; });
    return isPlain ? text : u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

}  // namespace

QByteArray CsvText(const QList<QList<Value>>& rows) {
    const QChar separator = DecimalSeparatorChar() == u',' ? u';' : u',';
    QByteArray csv("\xEF\xBB\xBF");
    for (const QList<Value>& row : rows) {
        for (qsizetype cell = 0; cell < row.size(); ++cell) {
            if (cell > 0) csv += QString(separator).toUtf8();
            csv += Cell(row[cell], separator).toUtf8();
        }
        csv += "\r\n";
    }
    return csv;
}

}  // namespace values
