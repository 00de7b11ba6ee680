#pragma once

#include "upkeep/BackupList.h"
#include "upkeep/BackupPlan.h"

namespace upkeep {

// Makes a backup of a whole register while its tills sell: both stores, the owner's own one, the ini files, the
// pictures and the ribbon. It counts once it was read back from the folder's disk, its store was opened and its days
// are those of the live store (those of today may have grown since); then older ones go as the plan says. What is as it
// was in the backup before is linked to that where the file system can.
//
// When it fails there is no new backup, and the older ones stay; a values::Error says why in a sentence, and is noted
// in backup.state for the owner. 3218 while another program makes one of this register, 3059 when its user left: these
// two are no failures.
BackupFacts MakeBackup(const QString& registerFolder, const BackupPlan& plan, const Progress& progress = {});

}  // namespace upkeep
