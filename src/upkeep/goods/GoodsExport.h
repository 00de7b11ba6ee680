#pragma once

#include "store/Database.h"

namespace upkeep {

// Writes all goods, or all customers, so that a spreadsheet of the user's region opens the file by a double click:
// UTF-8 with its mark, the region's decimal sign, and the separator that goes with it. A text that would be a formula
// there gets an apostrophe in front. The file appears whole or not at all; one that is there is replaced. How many
// rows.
int ExportGoodsCsv(store::Database& main, const QString& path);
int ExportCustomersCsv(store::Database& main, const QString& path);
// The goods as a workbook of one sheet, codes as texts.
int ExportGoodsXlsx(store::Database& main, const QString& path);

// Cells as a line of such a file.
QByteArray CsvLine(const QStringList& cells);

}  // namespace upkeep
