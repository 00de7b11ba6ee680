#pragma once

#include "receipts/InvoiceText.h"

// The receipt of a stored invoice. It differs from that of the sale: no customer, the date and time of this printing,
// no A4 item block, and nothing for the ribbon or the fiscal printer.

// On the printer for receipts, with the drawer, the blank lines and the cutter of a sale.
void ReprintInvoice(const InvoiceText& invoice);

// The text of the preview, below the program's folder as the preview takes it.
inline const QString PreviewFile = QStringLiteral("\\tempracun.txt");
// Adds the receipt and two blank lines at the end of that text, which then stands open for the next one.
void AppendInvoiceToPreview(const InvoiceText& invoice);
void ClosePreview();
