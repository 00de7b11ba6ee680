#pragma once

#include <QStringList>
#include <vector>

#include "values/Value.h"

namespace upkeep {

// A table that goes out.
struct Sheet {
    struct Column {
        QString heading;
        bool isPrice = false;  // at least two decimals
    };
    QString name;
    std::vector<Column> columns;
    std::vector<std::vector<values::Value>> rows;
};

// Writes a file that a spreadsheet opens: a workbook where its name ends in .xlsx, else CSV in UTF-8 with a mark at its
// head, with the decimal sign of the user's locale and a semicolon between the cells where that sign is the comma. No
// text becomes a formula. The file is there whole, in the place of one that was there, or not at all (FileError).
void WriteSheet(const QString& path, const Sheet& sheet);

}  // namespace upkeep
