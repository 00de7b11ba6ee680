#pragma once

#include "forms/ListView.h"
#include "receipts/InvoiceText.h"

// The two lists that show an invoice on a screen, whose texts are the figures themselves:
//   lines   as InvoiceText::Item::Column tells
//   recap   TaxID, nothing, percent, amount, tax amount

// The columns as the cashier sees them. The sale carries the product's ID and hides what only the receipt needs; the
// review shows tax and unit.
enum class LinesOf { Sale, Review };
void SetLineColumns(forms::ListView& lines, LinesOf screen);
void SetRecapColumns(forms::ListView& recap);

// The recapitulation of all lines anew; the row that a line joined last is selected.
void RebuildTaxRecap(const forms::ListView& lines, forms::ListView& recap);

InvoiceText::Item ItemOf(const forms::ListView& lines, int row);
QStringList CellsOf(const InvoiceText::Item& item);
QList<InvoiceText::Item> ItemsOf(const forms::ListView& lines);
QList<InvoiceText::Tax> TaxesOf(const forms::ListView& recap);
