#include "masterdata/ListedRow.h"

#include "core/dbModule.h"

using namespace Qt::StringLiterals;

store::Recordset OpenListedRow(const QString& query) {
    auto row = MainStore().OpenRecordset(query);
    if (row.AtEOF()) throw store::StoreError(store::NoCurrentRow, u"The row was deleted after this list was read."_s);
    return row;
}
