#pragma once

#include "masterdata/people/CustomerEntry.h"

// Changes the customer or supplier that is selected in the list lv1 of CallerForm.
class frmEditKupac : public CustomerEntry {
    Q_OBJECT

public:
    frmEditKupac();

protected:
    void Form_Load() override;
    void BeginRow() override;
    void RowStored() override;

private:
    void RefreshCustomerRow();

    forms::ListView* lv1_ = nullptr;
    int row_ = -1;
};
