#pragma once

#include <QList>

#include "upkeep/goods/SheetField.h"
#include "upkeep/goods/TextTable.h"

namespace upkeep {

// A column that somebody says the field of: by its heading, or by its number from 1. Without a column no column is that
// field.
struct ColumnChoice {
    QString column;
    SheetField field = SheetField::None;
};

// How a table of goods is to be read; what is not said is guessed.
struct SheetWish {
    TableForm form;
    QChar decimal;  // comma or point
    QList<ColumnChoice> columns;
};

// A table of goods as it was read, with what was guessed.
struct GoodsSheet {
    TextTable table;
    QChar decimal;          // null where no amount says it
    size_t headingRow = 0;  // in table.rows; what stands above is no part of the table
    QList<SheetField> columns;

    const QStringList& Headings() const { return table.rows[headingRow].cells; }
    // -1 when no column is.
    qsizetype ColumnOf(SheetField field) const { return columns.indexOf(field); }
};

// FileError where the file can't be read as a table, or no column is the code, and where a choice names none that is
// there.
GoodsSheet ReadGoodsSheet(const QString& path, const SheetWish& wish = {});

}  // namespace upkeep
