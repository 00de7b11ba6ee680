#pragma once

#include <QString>
#include <QStringList>

#include "receipts/InvoiceText.h"

// The fiscal command file below the program's folder, which only grows here; another program reads it and drives the
// fiscal printer.

// One sale line a row, to channel 1, which is open: the product's ID, or its code, identifies the goods. The mode is
// there for symmetry with the layouts.
void WriteFiscalItemsByID(const QString& OutputMode, const InvoiceText& invoice);
void WriteFiscalItemsByCode(const QString& OutputMode, const InvoiceText& invoice);

// The records of a sale in the form that FiskalniRacunDA names; no records in a form that it does not know. An
// error leaves channel 1 to the caller.
void AppendFiscalSale(const InvoiceText& invoice);
// The records of the other operations of the fiscal printer, whatever FiskalniRacunDA says.
void AppendFiscalRecords(const QStringList& records);
