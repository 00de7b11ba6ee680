#pragma once

#include "values/FileLock.h"

namespace upkeep {

// While it lives, no till runs in the folder of a register. StoreError 3218 where one does.
class ClosedTill {
public:
    explicit ClosedTill(const QString& registerFolder);

private:
    values::FileLock lock_;
};

}  // namespace upkeep
