#pragma once

#include <QStringList>
#include <functional>

#include "forms/ListView.h"
#include "store/Recordset.h"

// The cells of a list's row, taken from the current row of a cursor.
using CellsOf = std::function<QStringList(store::Recordset& row)>;

// Empties the list, gives it a row for each row of the cursor, and selects the first. A long list reads its later rows
// from the cursor when they are first looked at, so the cursor must live until the list is filled anew. A row that
// cannot be read, since it was deleted meanwhile for instance, has empty cells.
void FillList(forms::ListView& list, store::Recordset& rows, CellsOf cells);
