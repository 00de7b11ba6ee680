#include "core/FillList.h"

namespace {

qint64 Count(store::Recordset& rows) {
    if (rows.RecordCount() > 0) rows.MoveLast();
    return rows.RecordCount();
}

}  // namespace

void FillList(forms::ListView& list, store::Recordset& rows, CellsOf cells) {
    list.ShowRows(static_cast<int>(Count(rows)), [&rows, cells = std::move(cells)](int row) -> QStringList {
        try {
            rows.MoveTo(row);
            return cells(rows);
        } catch (const values::Error&) {
            return {};
        }
    });
    if (list.Count() > 0) list.Select(0);
}
