#pragma once

#include "masterdata/TableList.h"
#include "store/Listing.h"

// The tax rates.
class frmTax : public TableList {
    Q_OBJECT

public:
    frmTax();

protected:
    void ShowRows() override;
    void ShowNew() override;
    void ShowEdit() override;
    QString DeleteQuestion(store::Recordset& tax) const override;
    void cmdDelete_Click() override;

private:
    void FillTaxGrid(store::Listing taxes);
};
