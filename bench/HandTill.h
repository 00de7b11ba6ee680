#pragma once

#include "bench/PostingTill.h"
#include "bench/RawServer.h"

namespace bench {

// A till written by hand in libpq: the statements of PostingTill, in the same trips and under the same locks.
class HandTill {
public:
    HandTill(const QString& address, const QString& period);

    // Gives the number of rows that were written.
    qint64 Post(const Invoices& invoice);

private:
    qint64 AddInvoice(const Invoices& invoice);
    qint64 TakeOffStock(const Goods& goods);
    qint64 AddLine(const Invoices& invoice, const Goods& goods);
    qint64 ChangePeriod(const Invoices& invoice);

    RawServer raw_;
    QByteArray period_;  // the identity of its row
};

}  // namespace bench
