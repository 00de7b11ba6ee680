#pragma once

#include "receipts/InvoiceText.h"

// Prints a posted invoice: the receipt on the printer for receipts, its copy on the ribbon, the fiscal records, in this
// order and as the settings want each. An error ends it at once, with nothing left open, and is an OutputError
// always: what stands behind it in the order is not printed. Nothing is printed a second time here.
void PrintInvoice(const InvoiceText& invoice);

// The text of a receipt in the layout of the settings, on what is open: the middle of the above.
void PrintReceiptText(const QString& OutputMode, const InvoiceText& invoice);
