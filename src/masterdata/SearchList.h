#pragma once

#include "masterdata/SearchScreen.h"
#include "store/Recordset.h"

// A search screen over a table that it keeps: F5 adds a row, F4 changes the selected one, F6 deletes it.
class SearchList : public SearchScreen {
    Q_OBJECT

protected:
    // Ties the controls that all such screens have.
    template <typename Controls>
    void KeepList(const Controls& ui) {
        SearchWith(ui.search, ui.lv1);
        HelpAndClose(ui.cmdHelp, ui.cmdClose, {Qt::Key_Escape, Qt::Key_F12});
        FunctionKeys({{Qt::Key_F4, ui.cmdUpdate},
                      {Qt::Key_F5, ui.cmdNew},
                      {Qt::Key_F6, ui.cmdDelete},
                      {Qt::Key_F11, ui.search->cmdRefresh}});
        On(ui.cmdNew, &SearchList::cmdNew_Click);
        On(ui.cmdUpdate, &SearchList::cmdUpdate_Click);
        On(ui.cmdDelete, &SearchList::cmdDelete_Click);
    }

    virtual void cmdNew_Click() = 0;
    virtual void cmdUpdate_Click() = 0;
    virtual void cmdDelete_Click() = 0;

    // Deletes the cursor's row if the user agrees, then shows the rows of the last search and tells that it is done.
    void DeleteRow(store::Recordset& row, const QString& question, const QString& done);
};
