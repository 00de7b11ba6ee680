#pragma once

#include <QStringList>
#include <vector>

namespace upkeep {

// How a table is written; what is left empty is guessed from the file.
struct TableForm {
    QByteArray encoding = {};  // as ICU names them: "UTF-8", "windows-1250"
    QChar separator = {};      // ';', ',' or a tab
};

// A table that a spreadsheet saved as text. Empty lines are left out.
struct TableText {
    struct Row {
        int line = 0;  // of the file, from 1; that of its first cell where a cell has line breaks
        QStringList cells;
    };
    TableForm form;  // as it was read
    std::vector<Row> rows;
};

// Reads a text of cells between separators (RFC 4180: cells with separators, quotes or line breaks stand in quotes). A
// FileError in words, and no crash, for what is no such text: a spreadsheet's own file, a document, a picture, an empty
// file, one of over 64 MB, or one in an encoding that isn't known.
TableText ReadTable(const QString& path, const TableForm& form = {});

}  // namespace upkeep
