#pragma once

#include "masterdata/people/CustomerEntry.h"

// Adds a customer or supplier.
class frmNewKupac : public CustomerEntry {
    Q_OBJECT

public:
    frmNewKupac();

protected:
    void Form_Load() override;
    void BeginRow() override;
};
