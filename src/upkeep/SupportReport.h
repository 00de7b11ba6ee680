#pragma once

#include <QString>

namespace upkeep {

// What whoever helps a shop has to know of a register, as a text: versions, settings, ini files, how many rows the
// tables have, what a check finds, and the last hundred errors. Names, sales, addresses and passwords are left out.
QString SupportReport(const QString& registerFolder);

}  // namespace upkeep
