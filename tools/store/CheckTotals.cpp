#include "Findings.h"
#include "delivery/ValueText.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace tool {

namespace {

// Under their key, without case.
using Sums = QHash<QString, Money>;

// The query gives a key and a sum; a sum of nothing is null.
Sums SumsOf(store::Database& main, const QString& query) {
    Sums sums;
    auto rows = main.OpenRecordset(query);
    for (auto& row : rows) sums.insert(row[0].TextOrEmpty().toCaseFolded(), row[1].IsNull() ? Money() : row[1].Money());
    return sums;
}

QString Shown(Money money) {
    return QString::fromLatin1(delivery::WriteValue(money));
}

// Keys that only one side has are another check's matter, unless `everyTotal` is set: then a missing sum is zero.
void Compare(const Sums& totals, const Sums& sums, bool everyTotal, const QString& kind, Findings& findings) {
    QStringList wrong;
    for (auto total = totals.cbegin(); total != totals.cend(); ++total) {
        const bool counts = everyTotal || sums.contains(total.key());
        if (counts && total.value() != sums.value(total.key())) wrong.append(total.key());
    }
    wrong.sort();
    for (const QString& key : wrong)
        findings.Note(kind, u"%1 (%2, not %3)"_s.arg(key, Shown(totals[key]), Shown(sums.value(key))));
}

}  // namespace

void CheckTotals(store::Database& main, Findings& findings) {
    Compare(SumsOf(main, u"SELECT InvoiceID, Sum(CashAmount) AS Total FROM Invoices GROUP BY InvoiceID"_s),
            SumsOf(main, u"SELECT InvoiceID, Sum(Amount) AS Total FROM SalesDetails GROUP BY InvoiceID"_s), false,
            u"invoices whose total is not the sum of their lines"_s, findings);
    Compare(SumsOf(main, u"SELECT InvoiceID, Sum(TaxTotal) AS Total FROM Invoices GROUP BY InvoiceID"_s),
            SumsOf(main, u"SELECT InvoiceID, Sum(TaxAmount) AS Total FROM SalesDetails GROUP BY InvoiceID"_s), false,
            u"invoices whose tax is not the sum of their lines' tax"_s, findings);
    Compare(SumsOf(main, u"SELECT SalesID, Sum(TotalSales) AS Total FROM Sales GROUP BY SalesID"_s),
            SumsOf(main, u"SELECT SalesID, Sum(CashAmount) AS Total FROM Invoices GROUP BY SalesID"_s), true,
            u"periods whose total is not the sum of their invoices"_s, findings);
}

}  // namespace tool
