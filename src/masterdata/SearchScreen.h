#pragma once

#include "forms/ListView.h"
#include "masterdata/SearchBlock.h"
#include "support/OfficeForm.h"

// A screen whose list is narrowed by the search block: each letter typed, each choice of a field or of the way to look
// runs the search at once.
class SearchScreen : public OfficeForm {
    Q_OBJECT

protected:
    // Ties the block to the screen; the arrow down leads from the text into the list.
    void SearchWith(SearchBlock* block, forms::ListView* list);
    // An entry of cboView, and the field that is searched while it is shown.
    struct SearchField {
        QString entry;
        QString field;
    };
    // The first is selected, which does not search yet.
    void SetSearchFields(const QList<SearchField>& fields);

    // Opens a query as the screen's rows and fills the list with them.
    virtual void ShowRows(const QString& query) = 0;

    void Search();
    // Empties the text, which searches by itself, and then shows the rows without a condition.
    virtual void cmdRefresh_Click();

    QString base_;       // the query without a condition
    QString condition_;  // of the rows searched for last; a refresh does not reset it

private:
    void cboView_Click();

    SearchBlock* block_ = nullptr;
    // Filling cboView counts as a choice, which must not search.
    bool fieldsAreSet_ = false;
};
