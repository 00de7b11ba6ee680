#pragma once

#include "masterdata/products/ProductEntry.h"

// Changes the product that is selected in the list of frmArtikli, which must be loaded.
class frmEditProduct : public ProductEntry {
    Q_OBJECT

public:
    frmEditProduct();

protected:
    void Form_Load() override;
    void ShowTax(store::Recordset& tax) override;
    void StoreProduct() override;
    void ProductStored() override;

private:
    void cmdSastav_Click();

    void ShowProduct();
    QString Assignment(const QString& field, const QString& value);
    void UpdateProduct();
    void RefreshProductRow();

    store::Recordset rsProduct_;
    forms::ListView* lv1_ = nullptr;
    int row_ = -1;
};
