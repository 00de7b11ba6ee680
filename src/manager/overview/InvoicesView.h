#pragma once

#include "forms/Form.h"
#include "ui_InvoicesView.h"
#include "upkeep/InvoiceList.h"

namespace manager {

// The invoices behind a figure, and the text of the one that is chosen.
class InvoicesView : public forms::Form {
    Q_OBJECT

public:
    InvoicesView(const QString& what, std::vector<upkeep::ListedInvoice> invoices);

    Ui::InvoicesView ui;

protected:
    void Form_Load() override;

private:
    void cmdReceipt_Click();
    void cmdBack_Click();
    void cmdClose_Click();
    QString ReceiptOf(const upkeep::ListedInvoice& invoice);

    const std::vector<upkeep::ListedInvoice> invoices_;
};

}  // namespace manager
