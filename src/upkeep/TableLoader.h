#pragma once

#include <QIODevice>
#include <QString>
#include <functional>

#include "store/Database.h"

namespace upkeep {

// The table of that name, case ignored; StoreError 3078 when the store has none.
const store::Table& FindTable(const store::Database& database, const QString& name);
// A cursor over a whole table, for adding rows.
store::Recordset OpenTable(store::Database& database, const store::Table& table);

// The position of a field; 3061 when the table has none of that name.
int FindField(const store::Table& table, const QString& name);
// Sets a field of the row being added from a cell (ValueText.h); an error names the field.
void SetField(store::Recordset& row, const store::Column& column, const QByteArray& cell);

// Adds the rows of a tab-separated text (ValueText.h): a line of field names, then a line a row, in UTF-8, lines ended
// by LF or CR LF. Fields that are not named take their defaults. The first bad row throws its error with the line's
// number; the caller's Batch makes it all or none. `look` sees each row before it goes in, with its line's number.
using RowLook = std::function<void(store::Recordset& row, qint64 line)>;
void LoadRows(store::Database& database, const QString& tableName, QIODevice& lines, const RowLook& look = {});

}  // namespace upkeep
