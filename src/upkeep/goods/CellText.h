#pragma once

#include <QString>

namespace upkeep {

// A text in a cell that no spreadsheet takes for a formula: what begins like one gets an apostrophe before it.
QString GuardedCell(const QString& text);

// The text of a cell: without the apostrophe of GuardedCell, and of ="007", by which programs keep a text a text, what
// stands in the quotes.
QString TextOfCell(const QString& cell);

// Why a cell holds no text or number: a formula, an error of the spreadsheet, a control character. Empty when it does.
QString FaultOfCell(const QString& cell);

}  // namespace upkeep
