#pragma once

#include "masterdata/EntryForm.h"
#include "store/Recordset.h"
#include "ui_frmFirma.h"

// The shop's own data, printed as the heading of receipts and reports. What is typed reaches the store and the
// settings, so that the next receipt has it.
class frmFirma : public EntryForm {
    Q_OBJECT

public:
    frmFirma();

protected:
    void Form_Load() override;

private:
    void cmdSacuvaj_Click();

    void BeginRow();

    Ui::frmFirma ui;
    store::Recordset rsCompany_;
};
