#pragma once

#include "masterdata/shop/TaxEntry.h"

class frmNewTax : public TaxEntry {
    Q_OBJECT

public:
    frmNewTax();

protected:
    void Form_Load() override;
    void Save() override;
};
