#pragma once

#include "masterdata/EntryForm.h"
#include "store/Recordset.h"
#include "ui_TaxEntry.h"

// The entry of a tax rate, new or known. Products keep the percent that they were saved with.
class TaxEntry : public EntryForm {
    Q_OBJECT

protected:
    struct Words {
        QString name;  // of the form
        QString title;
        QString duplicate;
    };

    explicit TaxEntry(const Words& words);

    // Writes the boxes into a row of rsTax_.
    virtual void Save() = 0;

    void ShowTax();
    void StoreTaxFields();

    Ui::TaxEntry ui;
    store::Recordset rsTax_;

private:
    void cmdAdd_Click();
    void ClearTaxFields();

    const QString duplicate_;
};
