#pragma once

#include <QString>

namespace upkeep {

// The text of a cell: without the apostrophe of values::GuardedText, and of ="007", by which programs keep a text a
// text, what stands in the quotes.
QString TextOfCell(const QString& cell);

// Why a cell holds no text or number: a formula, an error of the spreadsheet, a control character. Empty when it does.
QString FaultOfCell(const QString& cell);

}  // namespace upkeep
