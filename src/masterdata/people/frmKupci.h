#pragma once

#include "masterdata/SearchList.h"
#include "store/Listing.h"
#include "ui_frmKupci.h"

// All customers and suppliers: search, new, edit, delete.
class frmKupci : public SearchList {
    Q_OBJECT

public:
    frmKupci();

protected:
    void Form_Load() override;
    void ShowRows(const QString& query) override;
    void cmdNew_Click() override;
    void cmdUpdate_Click() override;
    void cmdDelete_Click() override;

private:
    void FillCustomerGrid(store::Listing customers);

    Ui::frmKupci ui;
};
