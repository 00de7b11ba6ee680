#pragma once

#include <QVariant>

#include "bench/RawServer.h"
#include "bench/RawStore.h"
#include "store/Recordset.h"

namespace bench {

// A row of Products, read whole in the several ways there are. Each gives the same digest: the sum of the numbers and
// of the first letters of the texts.
constexpr int ProductColumns = 13;

// All fields by name, as values.
qint64 ReadByName(store::Recordset& row);
// All columns as QString and qint64, as any Qt program would need them.
qint64 ReadAsQtValues(RawStatement& row);
qint64 ReadAsQtValues(const RawAnswer& answer, int firstColumn);
// The columns where SQLite has them; nothing is copied.
qint64 ReadBare(RawStatement& row);

qint64 DigestOf(const QVariant& value);

}  // namespace bench
