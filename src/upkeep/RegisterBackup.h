#pragma once

#include <functional>

#include "upkeep/BackupFolder.h"

namespace upkeep {

// Told how far it has come, in words; false leaves the work with error 3059.
using Progress = std::function<bool(const QString& doing)>;

// Copies a whole register into the owner's place while tills sell: both stores (the main one from a server, too), the
// owner's own data, ini files, pictures and ribbon. It counts, and older ones are cleared away, when it was opened
// again, checked, found to have the same sales of every day before today as the store has, and is on the disk; else
// nothing is left of it. What a killed one left is cleared away. Whichever way it ends is written into backup.state.
// One at a time: StoreLocked while another is being made. The place has to be one (RequirePlace).
Backup BackUpRegister(const QString& registerFolder, const QString& place, const Kept& kept,
                      const Progress& progress = {});

}  // namespace upkeep
