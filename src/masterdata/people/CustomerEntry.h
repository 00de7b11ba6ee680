#pragma once

#include <utility>

#include "masterdata/EntryForm.h"
#include "store/Recordset.h"
#include "ui_CustomerEntry.h"

// The entry of one customer or supplier: the screen of the twins that add and change one. Each of them says in words
// how it differs, and which row it writes.
class CustomerEntry : public EntryForm {
    Q_OBJECT

protected:
    struct Words {
        QString name;  // of the form
        QString title;
        QString ident;
    };

    explicit CustomerEntry(const Words& words);

    // Begins the change of the row that StoreCustomer writes.
    virtual void BeginRow() = 0;
    // The row is in the store, and the screen about to close.
    virtual void RowStored() {}

    void ShowCustomer();

    Ui::CustomerEntry ui;
    store::Recordset rsCustomer_;

private:
    void txtRabatMarza_LostFocus();
    void cmdUpdate_Click();

    void StoreCustomer();
    // The fields of the row and their boxes, in the order in which they are written.
    QList<std::pair<QString, QLineEdit*>> Fields() const;
};
