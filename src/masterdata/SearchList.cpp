#include "masterdata/SearchList.h"

#include "forms/MsgBox.h"

void SearchList::DeleteRow(store::Recordset& row, const QString& question, const QString& done) {
    if (!forms::Ask(question, Caption())) return;
    row.Delete();
    ShowRows(base_ + condition_);
    forms::Inform(done, Caption());
}
