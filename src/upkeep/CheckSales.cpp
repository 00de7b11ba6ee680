#include "upkeep/Check.h"
#include "upkeep/ValueText.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

void NoteUnlessEqual(FindingKind kind, const QString& text, const QString& id, Money told, Money summed,
                     Findings& findings) {
    if (told != summed) findings.Note(text, u"%1 (%2, not %3)"_s.arg(id, ShownAmount(told), ShownAmount(summed)), kind);
}

void NoteUnlessNumber(const QString& field, const QString& key, Findings& findings) {
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (key.isEmpty() || !std::ranges::all_of(key, isDigit))
        findings.Note(u"%1 that is no number"_s.arg(field), ShownKey(key), FindingKind::NumberExpected);
}

void CheckInvoice(const Invoice& invoice, Findings& findings) {
    NoteUnlessNumber(u"Invoices.InvoiceID"_s, invoice.id, findings);
    const QString id = ShownKey(invoice.id);
    if (invoice.rows > 1)
        findings.Note(u"Invoices.InvoiceID that stands more than once"_s, id, FindingKind::InvoiceTwice);
    if (invoice.lines == 0)
        return findings.Note(u"Invoices.InvoiceID that has no SalesDetails.InvoiceID"_s, id,
                             FindingKind::InvoiceWithoutLines);
    NoteUnlessEqual(FindingKind::InvoiceTotal, u"invoices whose total is not the sum of their lines"_s, id,
                    invoice.head.total, invoice.sumOfLines.total, findings);
    NoteUnlessEqual(FindingKind::InvoiceTax, u"invoices whose tax is not the sum of their lines' tax"_s, id,
                    invoice.head.tax, invoice.sumOfLines.tax, findings);
}

void CheckPeriod(const Period& period, Findings& findings) {
    NoteUnlessNumber(u"Sales.SalesID"_s, period.id, findings);
    const QString id = ShownKey(period.id);
    if (period.rows > 1) findings.Note(u"Sales.SalesID that stands more than once"_s, id, FindingKind::PeriodTwice);
    NoteUnlessEqual(FindingKind::PeriodTotal, u"periods whose total is not the sum of their invoices"_s, id,
                    period.takings, period.sold, findings);
}

}  // namespace

void CheckSales(store::Database& main, const SalesBook& book, const DistinctKeys& products, Findings& findings) {
    const auto noteUnknown = [&](const QString& from, const DistinctKeys& keys, const TableField& to,
                                 FindingKind kind) {
        NoteUnknown(from, keys, to.Name(), KeysOf(main, to), kind, findings);
    };
    NoteUnknown(u"SalesDetails.InvoiceID"_s, book.unknownInvoices, u"Invoices.InvoiceID"_s, {},
                FindingKind::LineWithoutInvoice, findings);
    NoteUnknown(u"Invoices.SalesID"_s, book.unknownPeriods, u"Sales.SalesID"_s, {}, FindingKind::InvoiceWithoutPeriod,
                findings);
    NoteUnknown(u"SalesDetails.ProdCode"_s, book.products, u"Products.ProdCode"_s, products, FindingKind::SoldGoodsGone,
                findings);
    noteUnknown(u"Invoices.CashierID"_s, book.cashiers, {u"Users"_s, u"UserID"_s}, FindingKind::CashierGone);
    noteUnknown(u"SalesDetails.TaxID"_s, book.taxes, {u"Tax"_s, u"TaxID"_s}, FindingKind::SoldTaxGone);

    findings.extent.invoices = static_cast<qint64>(book.invoices.size());
    for (const Invoice& invoice : book.invoices) CheckInvoice(invoice, findings);
    for (const InvoiceRow& row : book.rows) NoteUnlessNumber(u"Invoices.OrNo"_s, row.number, findings);
    for (const Period& period : book.periods) CheckPeriod(period, findings);
    const DistinctKeys logins = KeysOf(main, {u"Login"_s, u"LogInNo"_s});
    for (const QString& login : logins.List()) NoteUnlessNumber(u"Login.LogInNo"_s, login, findings);
}

}  // namespace upkeep
