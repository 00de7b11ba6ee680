#pragma once

#include <QString>

namespace manager {

// The last good backup of this register with its size and place, or that there is none.
QString LastBackupInWords();

}  // namespace manager
