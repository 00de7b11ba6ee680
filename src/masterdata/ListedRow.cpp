#include "masterdata/ListedRow.h"

#include "core/dbModule.h"
#include "masterdata/MasterdataWords.h"

store::Recordset OpenListedRow(const QString& query) {
    auto row = MainStore().OpenRecordset(query);
    if (row.AtEOF())
        throw store::StoreError(store::NoCurrentRow,
                                MasterdataWords::tr("The row was deleted after this list was read."));
    return row;
}
