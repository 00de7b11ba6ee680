#include "upkeep/ClosedTill.h"

#include "store/StoreError.h"
#include "upkeep/Words.h"

namespace upkeep {

ClosedTill::ClosedTill(const QString& registerFolder) : lock_(registerFolder, values::FileLock::On::Folder) {
    if (!lock_.IsHeld())
        throw store::StoreError(store::StoreLocked, Words::tr("The till of this register is open. Close it first."));
}

}  // namespace upkeep
