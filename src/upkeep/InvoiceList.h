#pragma once

#include <QIODevice>
#include <QTime>
#include <optional>

#include "upkeep/Overview.h"

namespace upkeep {

// Which invoices are meant; what is not said counts for nothing.
struct InvoicesWish {
    Days days;
    std::optional<int> hour = {};
    std::optional<int> weekday = {};  // 1 is Monday
    std::optional<QString> cashierID = {};
    // With a line of which this holds.
    std::optional<QString> goods = {};  // by their code
    std::optional<QString> taken = {};  // these goods, or others that they are a part of
    std::optional<QString> group = {};  // as an overview numbers them
    std::optional<QString> taxID = {};
};

struct ListedInvoice {
    QString id;
    QString number;  // the one on paper
    QDate day;
    QTime time;
    QString cashier;
    Amounts amounts;
};

// In the order of their days and times.
std::vector<ListedInvoice> ReadInvoices(store::Database& main, const InvoicesWish& wish);
// Its lines and totals, 40 columns wide.
QString InvoiceAsText(store::Database& main, const ListedInvoice& invoice);
// The receipt as it was printed, in the bytes of the ribbon; nothing when the ribbon does not have it.
QByteArray FindReceipt(QIODevice& ribbon, const ListedInvoice& invoice);

}  // namespace upkeep
