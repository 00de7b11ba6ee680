#include "upkeep/Progress.h"

#include "store/StoreError.h"
#include "upkeep/Words.h"

namespace upkeep {

void GoOn(const Progress& progress, const QString& doing) {
    if (progress && !progress(doing)) throw store::StoreError(store::Cancelled, Words::tr("The work was left."));
}

}  // namespace upkeep
