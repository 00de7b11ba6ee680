#pragma once

#include "masterdata/people/UserEntry.h"

// Changes the user that is selected in the list of CallerForm, the number as well: the log and the invoices keep the
// old one.
class frmEditUser : public UserEntry {
    Q_OBJECT

public:
    frmEditUser();

protected:
    void Form_Load() override;
    void Save() override;
};
