#pragma once

#include "masterdata/shop/TaxEntry.h"

// Changes the tax that is selected in frmTax; its code stays.
class frmEditTax : public TaxEntry {
    Q_OBJECT

public:
    frmEditTax();

protected:
    void Form_Load() override;
    void Save() override;
};
