#pragma once

#include "masterdata/people/UserEntry.h"

class frmNewUser : public UserEntry {
    Q_OBJECT

public:
    frmNewUser();

protected:
    void Form_Load() override;
    void Save() override;
};
