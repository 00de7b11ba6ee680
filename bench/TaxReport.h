#pragma once

#include <QDate>

#include "bench/Harness.h"
#include "store/Place.h"

namespace bench {

// The tax report by day over these days, read to its end.
Work ReadTaxReport(const store::Place& place, QDate from, QDate to);

}  // namespace bench
