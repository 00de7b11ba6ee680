#pragma once

#include "forms/Form.h"
#include "receipts/InvoiceText.h"
#include "store/Recordset.h"
#include "ui_frmRacPRG.h"

// Leafs through stored invoices and prints them again. Loading it brings up the preview of all of them first, so a
// caller that wants only that loads the form and unloads it without showing it. It changes nothing in the store.
class frmRacPRG : public forms::Form {
    Q_OBJECT

public:
    frmRacPRG();

    // Clause of the query that selects the invoices, with its WHERE; empty for all.
    QString strSQLwhere;
    // Set by a caller that loads the form for the preview only; the load is the same with and without it.
    bool Printaj = false;

protected:
    void Form_Load() override;

private:
    void cmdPrint_Click();
    void cmdSacuvaj_Click();
    void Command1_Click();
    void cmdFirst_Click();
    void cmdPrevious_Click();
    void cmdNext_Click();
    void cmdLast_Click();
    void cmdHelp_Click();
    void cmdClose_Click();

    void PreviewAllInvoices();
    void ShowInvoice();
    void ShowInvoiceHeader();
    void ShowInvoiceLines();
    InvoiceText TakeInvoiceText() const;

    Ui::frmRacPRG ui;
    store::Recordset rsInvoices_;
};
