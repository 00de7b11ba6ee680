#pragma once

#include "masterdata/TableList.h"
#include "store/Listing.h"

// The cashiers and the other users. A user may be deleted whatever the log and the invoices hold.
class frmUsers : public TableList {
    Q_OBJECT

public:
    frmUsers();

protected:
    void ShowRows() override;
    void ShowNew() override;
    void ShowEdit() override;
    QString DeleteQuestion(store::Recordset& user) const override;

private:
    void FillUserGrid(store::Listing users);
};
