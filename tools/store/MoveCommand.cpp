#include "Commands.h"
#include "Output.h"
#include "ToolWords.h"
#include "upkeep/Move.h"
#include "values/FileError.h"

namespace tool {

void Move(const QString& folder, const QString& address) {
    const upkeep::Moved moved = upkeep::MoveMainStore(folder, address);
    Output output;
    output.WriteLine(ToolWords::tr("Moved %1 rows of %2 tables and compared %3 days of sales.")
                         .arg(moved.rows)
                         .arg(moved.tables)
                         .arg(moved.days));
    if (moved.old.whyStays.isEmpty())
        output.WriteLine(ToolWords::tr("The old store is kept as %1.").arg(moved.old.keptAs));
    else
        output.WriteLine(ToolWords::tr("The old store could not be put aside, and no till may work on it any more. %1")
                             .arg(moved.old.whyStays));
    output.Finish();
}

}  // namespace tool
