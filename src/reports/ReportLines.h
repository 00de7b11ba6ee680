#pragma once

#include "forms/ListView.h"
#include "reports/ReportFacts.h"

// The lines of a printed report: its layout filled with the texts of the list and of the sums. `period` tells in words
// which days it covers.
QStringList ReportLines(const ReportLayout& layout, const QString& period, const forms::ListView& list,
                        const QStringList& sums);

// One line of an item, from a row of the list.
QString ItemLine(const PrintFields& fields, const forms::ListView& list, int row);
