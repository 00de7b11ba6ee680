#pragma once

#include <QStringList>
#include <vector>

#include "values/Value.h"

namespace manager {

// The figures of a chart as a table: what is listed, printed and saved in its place.
struct ChartTable {
    QStringList headings;
    std::vector<std::vector<values::Value>> rows;
    QList<int> numbers = {};  // columns of pieces and rates, which have no needless decimals as amounts do

    // As a person reads it.
    QStringList TextsOf(const std::vector<values::Value>& row) const;
};

}  // namespace manager
