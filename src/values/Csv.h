#pragma once

#include <QByteArray>
#include <QList>

#include "values/Value.h"

namespace values {

// Whether texts stand in quotes where they could be misread alone, or all of them, so that none is read as a number.
enum class CsvQuotes { WhereNeeded, AllTexts };

// A table as a text that spreadsheets of the user's locale open: UTF-8 with a byte-order mark, a semicolon between
// cells where the comma is the decimal separator, else a comma, lines ended by CR LF.
class CsvWriter {
public:
    explicit CsvWriter(CsvQuotes quotes = CsvQuotes::WhereNeeded);

    void AddText(const QString& text);  // guarded
    // Numbers and dates in the program's own texts: a minus of theirs is one.
    void AddPlain(const QString& text);
    void EndRow();
    const QByteArray& Text() const { return text_; }

private:
    void Add(const QString& cell, bool inQuotes);

    const CsvQuotes quotes_;
    const QChar separator_;
    QByteArray text_;
    bool isRowBegun_ = false;
};

// Rows at once; amounts have as many decimals as they need, and no groups.
QByteArray CsvText(const QList<QList<Value>>& rows);

// A text that no spreadsheet takes for a formula: what begins like one gets an apostrophe in front. The second gives it
// back as it was.
QString GuardedText(const QString& text);
QString UnguardedText(const QString& text);

}  // namespace values
