#include "masterdata/TableList.h"

#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "masterdata/ListedRow.h"

TableList::TableList(const Facts& facts)
    : rowQuery_(facts.rowQuery), isProtected_(facts.isProtected), deleted_(facts.deleted) {
    setObjectName(facts.name);
    ui.setupUi(this);
    setWindowTitle(facts.title);
    ui.lv1->SetColumns(facts.columns);
    HelpAndClose(ui.cmdHelp, ui.cmdClose, {Qt::Key_Escape, Qt::Key_F12});
    FunctionKeys({{Qt::Key_F4, ui.cmdEdit}, {Qt::Key_F5, ui.cmdAddNew}, {Qt::Key_F6, ui.cmdDelete}});
    ListKeys(ui.lv1, {{Qt::Key_Delete, ui.cmdDelete}, {Qt::Key_Return, ui.cmdEdit}});
    OnDoubleClick(ui.lv1, &TableList::cmdEdit_Click);
    On(ui.cmdAddNew, &TableList::cmdAddNew_Click);
    On(ui.cmdEdit, &TableList::cmdEdit_Click);
    On(ui.cmdDelete, &TableList::cmdDelete_Click);
}

void TableList::cmdAddNew_Click() {
    ShowNew();
    ShowRows();
}

void TableList::cmdEdit_Click() {
    if (ui.lv1->Count() == 0) return;
    ShowEdit();
    ShowRows();
}

void TableList::cmdDelete_Click() {
    if (ui.lv1->Count() == 0) return;
    auto row = OpenListedRow(rowQuery_.arg(SelectedKey(this)));
    if (row[u"Del"].IsNull() || row[u"Del"].YesNo()) return forms::Inform(isProtected_, Caption());
    if (!forms::Ask(DeleteQuestion(row), Caption())) return;
    row.Delete();
    ShowRows();
    forms::Inform(deleted_, Caption());
}

QString SelectedKey(forms::Form* listScreen) {
    return forms::Control<forms::ListView>(listScreen, u"lv1")->SelectedText();
}
