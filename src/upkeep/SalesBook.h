#pragma once

#include <QDate>
#include <vector>

#include "upkeep/KnownKeys.h"
#include "values/Money.h"

namespace upkeep {

// An amount with tax, and the tax in it.
struct Amounts {
    values::Money total;
    values::Money tax;

    Amounts& operator+=(const Amounts& other);
    bool operator==(const Amounts&) const = default;
};

// One row of Invoices.
struct InvoiceRow {
    QString number;  // the one on paper; empty for a null
    QDate day;
    Amounts amounts;
    Place period = Nowhere;
};

// All rows of one InvoiceID, of which there should be one, and the lines under it.
struct Invoice {
    QString id;
    Place period = Nowhere;  // of the first row
    int rows = 0;
    int lines = 0;
    Amounts head;
    Amounts sumOfLines;
};

// All rows of one SalesID, of which there should be one.
struct Period {
    QString id;
    int rows = 0;
    bool isClosed = false;
    qint64 endReport = 0;  // Grupni; 0 without one
    QDate day;             // of its end
    values::Money takings;
    values::Money sold;  // by its invoices
};

// The sales of a shop, read once for everything that is asked of them; rows in the order in which they were stored.
struct SalesBook {
    std::vector<Period> periods;
    std::vector<InvoiceRow> rows;
    std::vector<Invoice> invoices;
    // What they refer to; the first two are not in the book.
    DistinctKeys unknownPeriods;
    DistinctKeys unknownInvoices;
    DistinctKeys cashiers;
    DistinctKeys products;
    DistinctKeys taxes;
};

// Registers may sell meanwhile: the book is read again, up to three times, until no invoice came in between.
SalesBook ReadSalesBook(store::Database& main);

}  // namespace upkeep
