#include "upkeep/RowCount.h"

using namespace Qt::StringLiterals;

namespace upkeep {

qint64 CountRows(store::Database& database, const QString& table) {
    return database.OpenSnapshot(u"SELECT Count(*) AS N FROM [%1]"_s.arg(table))[0].Whole();
}

}  // namespace upkeep
