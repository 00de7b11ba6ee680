#pragma once

#include "store/Recordset.h"
#include "support/OfficeForm.h"
#include "ui_TableList.h"

// A table short enough to be listed whole: new, edit, delete. Rows whose Del is true, or not known, stay. Each screen
// says which table it shows, in which words, and how its rows are entered.
class TableList : public OfficeForm {
    Q_OBJECT

protected:
    struct Facts {
        QString name;  // of the form
        QString title;
        std::vector<forms::ListColumn> columns;  // the first is the key
        QString rowQuery;                        // the row of the key %1
        QString isProtected;
        QString deleted;
    };

    explicit TableList(const Facts& facts);

    void Form_Load() override { ShowRows(); }
    // Opens the rows anew and fills the list with them.
    virtual void ShowRows() = 0;
    virtual void ShowNew() = 0;
    virtual void ShowEdit() = 0;
    virtual QString DeleteQuestion(store::Recordset& row) const = 0;
    virtual void cmdDelete_Click();

    Ui::TableList ui;

private:
    void cmdAddNew_Click();
    void cmdEdit_Click();

    const QString rowQuery_;
    const QString isProtected_;
    const QString deleted_;
};

// The key of the row that is selected in a list screen, for the screen that edits it.
QString SelectedKey(forms::Form* listScreen);
