#pragma once

#include <QChar>
#include <QString>
#include <QStringList>
#include <vector>

namespace upkeep {

// How a text is a table. What is empty is guessed.
struct TableForm {
    QString encoding;
    QChar separator;  // , ; or a tab
};

struct TableRow {
    qint64 line = 0;  // of the file, from 1, in which the row begins
    QStringList cells;
};

// A table that a spreadsheet saved as text.
struct TextTable {
    TableForm form;
    std::vector<TableRow> rows;  // without those that are empty
};

// Reads a file of cells divided by a sign, as spreadsheets save it: cells in quotes may hold the sign, line breaks and
// doubled quotes; lines end in any way. What is no such text (a workbook, a PDF, a picture), or is too large, is a
// FileError that says what to do. No more of it is read than may be in a table.
TextTable ReadTextTable(const QString& path, const TableForm& form = {});

}  // namespace upkeep
