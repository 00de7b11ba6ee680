#include "Commands.h"
#include "Output.h"
#include "upkeep/Move.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace tool {

void Move(const QString& folder, const QString& address) {
    const upkeep::Moved moved = upkeep::MoveMainStore(folder, address);
    Output output;
    output.Write(u"Moved %1 rows of %2 tables and compared %3 days of sales.\n"_s.arg(moved.rows)
                     .arg(moved.tables)
                     .arg(moved.days)
                     .toUtf8());
    output.Write(u"The old store is kept as %1.\n"_s.arg(moved.keptAs).toUtf8());
    output.Finish();
}

}  // namespace tool
