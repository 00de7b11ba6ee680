#pragma once

#include <QDate>
#include <QSet>

#include "forms/Form.h"
#include "ui_InvoicesForm.h"

namespace manager {

// Which invoices stand behind a figure.
struct InvoicesBehind {
    QString what;  // in words
    QDate from, to;
    int weekday = 0;        // 1 is Monday, 0 each
    int hour = -1;          // -1 each
    QString cashier = {};   // null: each
    bool byNumber = false;  // only those of `numbers`
    QSet<QString> numbers = {};
};

// The invoices behind a figure, and the receipt of the one that is chosen.
class InvoicesForm : public forms::Form {
    Q_OBJECT

public:
    explicit InvoicesForm(InvoicesBehind behind);

    Ui::InvoicesForm ui;

protected:
    void Form_Load() override;

private:
    void lstInvoices_Chosen();
    void cmdClose_Click();

    const InvoicesBehind behind_;
};

}  // namespace manager
