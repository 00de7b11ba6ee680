#pragma once

#include "receipts/InvoiceText.h"

// Adds a line to the tax recapitulation: one row a TaxID in the order of first appearance, each sum rounded to "0.00"
// at every step. Gives the row that the line joined, -1 when it began a new one.
int AddToTaxRecap(const InvoiceText::Item& line, QList<InvoiceText::Tax>& recap);

// The recapitulation of all lines.
QList<InvoiceText::Tax> TaxRecapOf(const QList<InvoiceText::Item>& lines);
