#pragma once

#include "store/Recordset.h"

// The store's row behind one of a list. A list shows the moment at which it was filled: a row that was deleted since is
// 3021, in words that say so.
store::Recordset OpenListedRow(const QString& query);
