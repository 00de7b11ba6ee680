#pragma once

#include <QDate>
#include <QString>

#include "values/Money.h"

// The records of the fiscal command file, one line each: a command letter with a fixed prefix, then fields. The program
// that reads the file knows them by these very texts.

// A sale line; the identification fields close the record.
QString FiscalSaleRecord(const QString& description, values::Money price, values::Money quantity,
                         const QString& identification);
QString FiscalEndOfSaleRecord();
// A free line on the slip of a sale, `line` being its place, in either form.
QString FiscalFreeLineV(int line, const QString& text);
QString FiscalFreeLineQ(int line, const QString& text);

QString FiscalTextRecord(const QString& first, const QString& second);
QString FiscalXRecord();
QString FiscalZRecord();
QString FiscalDepositRecord(values::Money amount);
QString FiscalPayoutRecord(values::Money amount);
QString FiscalPeriodicRecord(QDate from, QDate to);
// The number as entered, with at least six digits.
QString FiscalWithdrawalRecord(const QString& invoiceNumber);
