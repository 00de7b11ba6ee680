#pragma once

#include <QString>

#include "receipts/InvoiceText.h"

// The item blocks of a receipt: a header between two rules, then one or two lines a row. Numbers push a line that they
// do not fit, descriptions are cut.

void PrintItemsLayout1(const QString& OutputMode, const InvoiceText& invoice);  // 40 columns, with product codes
void PrintItemsLayout2(const QString& OutputMode, const InvoiceText& invoice);  // 40 columns, one line a row
void PrintItemsLayout3(const QString& OutputMode, const InvoiceText& invoice);  // 40 columns, numbered
void PrintItemsLayout4(const QString& OutputMode, const InvoiceText& invoice);  // 40 columns, numbered, one line a row
void PrintItemsLayout5(const QString& OutputMode, const InvoiceText& invoice);  // 80 columns, with figures without tax
void PrintItemsLayout6(const QString& OutputMode, const InvoiceText& invoice);  // 32 columns, numbered
void PrintItemsLayout7(const QString& OutputMode, const InvoiceText& invoice);  // 32 columns, one line a row

// The item block that TipRacuna names; none when it names none.
void PrintItems(const QString& OutputMode, const InvoiceText& invoice);
