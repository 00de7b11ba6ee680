#pragma once

#include <QByteArray>
#include <QList>

#include "values/Value.h"

namespace values {

// A table as a text that spreadsheets of the user's locale open: UTF-8 with a byte-order mark, a semicolon between
// cells where the comma is the decimal separator, else a comma, lines ended by CR LF. Amounts have as many decimals as
// they need, and no groups. A text that a spreadsheet would take for a formula has an apostrophe in front.
QByteArray CsvText(const QList<QList<Value>>& rows);

}  // namespace values
