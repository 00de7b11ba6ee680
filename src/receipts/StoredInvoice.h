#pragma once

#include "receipts/InvoiceText.h"
#include "store/Recordset.h"

// A stored invoice as the review shows it and as its receipt is printed.

// The query of the invoices, each to be read by the functions below; `where` selects them, with its WHERE.
QString StoredInvoicesQuery(const QString& where);

// Number, cashier and totals of the invoice on which the cursor stands.
InvoiceText ReadInvoiceHead(store::Recordset& invoices);
QList<InvoiceText::Item> ReadInvoiceLines(store::Recordset& invoices);
// Head, lines and tax recapitulation.
InvoiceText ReadInvoice(store::Recordset& invoices);
