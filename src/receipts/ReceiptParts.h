#pragma once

#include <QString>

#include "receipts/InvoiceText.h"
#include "receipts/ReceiptLayout.h"

// The parts of a receipt; date and time are read from the clock as each line is printed.

// Shop lines, and the customer's when the invoice has one.
void PrintInvoiceHeading(const QString& OutputMode, const ReceiptLayout& layout, const InvoiceText& invoice);
// The shop lines below its name: address, identification, telephone, place of sale and an empty line.
void PrintShopLines(const QString& OutputMode);

// `number` is the invoice's, with its label.
void PrintDateBlock(const QString& OutputMode, DateBlock block, const QString& number);

// A head between two rules, then the lines of each row. Numbers push a line that they do not fit, descriptions are cut.
void PrintItems(const QString& OutputMode, const ReceiptLayout& layout, const InvoiceText& invoice);
// Subtotal, tax and total.
void PrintInvoiceTotals(const QString& OutputMode, const ReceiptLayout& layout, const InvoiceText& invoice);
// One line a tax, and their sum.
void PrintTaxRecapitulation(const QString& OutputMode, const InvoiceText& invoice);
// The tax block where the settings want it.
void PrintTaxRecapitulationIfWanted(const QString& OutputMode, const InvoiceText& invoice);
void PrintInvoiceFooter(const QString& OutputMode, const InvoiceText& invoice);
