#pragma once

#include "masterdata/products/ProductEntry.h"

// Adds products, one after another.
class frmNewProduct : public ProductEntry {
    Q_OBJECT

public:
    frmNewProduct();

protected:
    void Form_Load() override;
    void StoreProduct() override;
    void ProductStored() override;

private:
    void txtQuantity_LostFocus();
    void cmdDelete_Click();

    void ClearProductFields();
    void SetProductDefaults();
    void StoreProductFields();

    store::Recordset rsProducts_;
};
