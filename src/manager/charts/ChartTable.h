#pragma once

#include <QStringList>
#include <vector>

#include "values/Value.h"

namespace manager {

// The figures of a chart as a table: what is listed, printed and saved in its place.
struct ChartTable {
    QStringList headings;
    std::vector<std::vector<values::Value>> rows;
};

// As a person reads it: amounts with two decimals, numbers of pieces without needless zeros.
QString CellText(const values::Value& value);

}  // namespace manager
