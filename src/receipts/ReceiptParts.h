#pragma once

#include <QString>

#include "receipts/InvoiceText.h"

// The parts of a receipt that all layouts share; date and time are read from the clock as each line is printed.

// Shop lines, and the customer's when the invoice has one.
void PrintInvoiceHeading(const QString& OutputMode, const InvoiceText& invoice);
// The shop lines below its name: address, identification, telephone, place of sale and an empty line.
void PrintShopLines(const QString& OutputMode);

// Label and number, then date and time, in one line.
void PrintNumberLine(const QString& OutputMode, const QString& label, const QString& orNo);
// Date and time in one line, label and number in the next.
void PrintDateAndNumberLines(const QString& OutputMode, const QString& label, const QString& orNo);

// Subtotal, tax and total, as wide as the layout but 40 columns in layout 6.
void PrintInvoiceTotals(const QString& OutputMode, const InvoiceText& invoice);
// 15 columns, one line a tax, and their sum.
void PrintTaxRecapitulation(const QString& OutputMode, const InvoiceText& invoice);
// The tax block where the settings want it.
void PrintTaxRecapitulationIfWanted(const QString& OutputMode, const InvoiceText& invoice);
void PrintInvoiceFooter(const QString& OutputMode, const InvoiceText& invoice);
