#pragma once

#include <QDateTime>
#include <QList>

#include "upkeep/BackupPlan.h"

namespace upkeep {

// Which backups of a register may go, of those made at these times: all but the newest of each of the last days, weeks
// and months that have one. The newest of all stays in any case.
QList<QDateTime> OutdatedOf(QList<QDateTime> times, const BackupPlan& plan);

}  // namespace upkeep
