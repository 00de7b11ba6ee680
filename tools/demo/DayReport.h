#pragma once

#include <QString>

#include "store/Database.h"

// The period's invoices and the goods sold, as plain text.
QString DayReport(store::Database& main);
