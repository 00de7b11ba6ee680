#pragma once

#include <QMap>

#include "output/OutputFixture.h"
#include "receipts/InvoiceText.h"
#include "values/Clock.h"

// Cases under tests/data/receipts: settings and invoice as NAME=VALUE lines that change those of the file "shop", then
// "--", then the files that the receipt leaves behind, each under "== NAME". Line ends are CR LF; bytes beyond ASCII
// stand as \xHH, as does a blank at a line's end; \c ends a line that has no line end.
struct ReceiptCase {
    InvoiceText invoice;
    QMap<QString, QString> files;
};

// Reads a case, and puts its settings and locale in force.
ReceiptCase LoadReceiptCase(const QString& name);
// The settings and the invoice of the file "shop", with these lines of a case over them.
InvoiceText LoadShop(const QString& changes = {});
QString Shown(const QByteArray& bytes);

// Both ports are spool files; the clock stands still.
class ReceiptFixture : public OutputFixture {
protected:
    ReceiptFixture() {
        SetPorts("lpt1=file:lpt1.prn\nlpt2=file:lpt2.prn\n");
        values::SetClock([] { return QDateTime(QDate(2025, 11, 24), QTime(9, 5, 7, 123)); });
    }
    ~ReceiptFixture() override { values::SetClock({}); }
};
