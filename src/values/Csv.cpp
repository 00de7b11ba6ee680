#include "values/Csv.h"

#include <algorithm>

#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

// Apostrophes, and behind them what begins a formula; -1 without the latter.
qsizetype ApostrophesOfFormula(const QString& text) {
    const auto end = std::ranges::find_if(text, [](QChar c) { return c != u'\''; });
    const bool isFormula = end != text.end() && QStringView(u"=+-@\t\r\n").contains(*end);
    return isFormula ? end - text.begin() : -1;
}

}  // namespace

QString GuardedText(const QString& text) {
    return ApostrophesOfFormula(text) >= 0 ? u'\'' + text : text;
}

QString UnguardedText(const QString& text) {
    return ApostrophesOfFormula(text) > 0 ? text.sliced(1) : text;
}

CsvWriter::CsvWriter(CsvQuotes quotes)
    : quotes_(quotes), separator_(DecimalSeparatorChar() == u',' ? u';' : u','), text_("\xEF\xBB\xBF") {}

void CsvWriter::AddText(const QString& text) {
    Add(GuardedText(text), quotes_ == CsvQuotes::AllTexts);
}

void CsvWriter::AddPlain(const QString& text) {
    Add(text, false);
}

void CsvWriter::Add(const QString& cell, bool inQuotes) {
    if (std::exchange(isRowBegun_, true)) text_ += QString(separator_).toUtf8();
    const auto misleads = [this](QChar c) { return c == separator_ || c == u'"' || c == u'\r' || c == u'\n'; };
    if (inQuotes || std::ranges::any_of(cell, misleads))
        text_ += (u'"' + QString(cell).replace(u'"', u"\"\""_s) + u'"').toUtf8();
    else
        text_ += cell.toUtf8();
}

void CsvWriter::EndRow() {
    text_ += "\r\n";
    isRowBegun_ = false;
}

QByteArray CsvText(const QList<QList<Value>>& rows) {
    CsvWriter csv;
    for (const QList<Value>& row : rows) {
        for (const Value& cell : row)
            cell.GetKind() == Value::Kind::Text ? csv.AddText(cell.As<QString>()) : csv.AddPlain(cell.TextOrEmpty());
        csv.EndRow();
    }
    return csv.Text();
}

}  // namespace values
