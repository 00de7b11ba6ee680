#include <QRegularExpression>
#include <QSet>

#include "Findings.h"

using namespace Qt::StringLiterals;

namespace tool {

namespace {

struct TableField {
    QString table;
    QString field;

    QString Name() const { return table + u'.' + field; }
};

struct Reference {
    TableField from;
    TableField to;
};

const QList<Reference>& References() {
    static const QList<Reference> references{
        {{u"SalesDetails"_s, u"InvoiceID"_s}, {u"Invoices"_s, u"InvoiceID"_s}},
        {{u"Invoices"_s, u"InvoiceID"_s}, {u"SalesDetails"_s, u"InvoiceID"_s}},
        {{u"Invoices"_s, u"SalesID"_s}, {u"Sales"_s, u"SalesID"_s}},
        {{u"Invoices"_s, u"CashierID"_s}, {u"Users"_s, u"UserID"_s}},
        {{u"SalesDetails"_s, u"ProdCode"_s}, {u"Products"_s, u"ProdCode"_s}},
        {{u"SalesDetails"_s, u"TaxID"_s}, {u"Tax"_s, u"TaxID"_s}},
        {{u"Products"_s, u"Unit"_s}, {u"Unit"_s, u"Abr"_s}},
        {{u"Products"_s, u"TaxID"_s}, {u"Tax"_s, u"TaxID"_s}},
        {{u"ProductsCon"_s, u"SIF"_s}, {u"Products"_s, u"ProdCode"_s}},
        {{u"ProductsCon"_s, u"CONsif"_s}, {u"Products"_s, u"ProdCode"_s}},
    };
    return references;
}

const QList<TableField>& NumberKeys() {
    static const QList<TableField> keys{{u"Sales"_s, u"SalesID"_s},
                                        {u"Invoices"_s, u"InvoiceID"_s},
                                        {u"Invoices"_s, u"OrNo"_s},
                                        {u"Login"_s, u"LogInNo"_s}};
    return keys;
}

// Each value of a field once, in the store's order; a null is the empty text.
QStringList KeysOf(store::Database& main, const TableField& key) {
    QStringList keys;
    auto rows = main.OpenRecordset(u"SELECT [%1] FROM [%2] GROUP BY [%1]"_s.arg(key.field, key.table));
    for (auto& row : rows) keys.append(row[0].TextOrEmpty());
    return keys;
}

QString Shown(const QString& key) {
    return key.isEmpty() ? u"(empty)"_s : key;
}

void CheckReference(store::Database& main, const Reference& reference, Findings& findings) {
    QSet<QString> known;
    for (const QString& key : KeysOf(main, reference.to)) known.insert(key.toCaseFolded());
    for (const QString& key : KeysOf(main, reference.from))
        if (!known.contains(key.toCaseFolded()))
            findings.Note(u"%1 that has no %2"_s.arg(reference.from.Name(), reference.to.Name()), Shown(key));
}

void CheckNumberKey(store::Database& main, const TableField& key, Findings& findings) {
    static const QRegularExpression number(u"\\A[0-9]+\\z"_s);
    for (const QString& text : KeysOf(main, key))
        if (!number.match(text).hasMatch()) findings.Note(u"%1 that is no number"_s.arg(key.Name()), Shown(text));
}

// Each row of a query is a case, named by its first field. The queries are grouped, so that their rows are of one
// moment.
void NoteRows(store::Database& main, const QString& query, const QString& kind, Findings& findings) {
    auto rows = main.OpenRecordset(query);
    for (auto& row : rows) findings.Note(kind, Shown(row[0].TextOrEmpty()));
}

void CheckRepeats(store::Database& main, const TableField& key, Findings& findings) {
    NoteRows(main,
             u"SELECT [%1], Count(*) AS N FROM [%2] GROUP BY [%1] HAVING Count(*) > 1"_s.arg(key.field, key.table),
             u"%1 that stands more than once"_s.arg(key.Name()), findings);
}

// What a table from elsewhere brings in and no screen would: goods that the till refuses, cuts or taxes wrongly.
void CheckGoods(store::Database& main, Findings& findings) {
    constexpr auto longestCode = 13, longestName = 40;  // that of their boxes
    const auto longer = [](int length) { return QString(length + 1, u'?'); };
    const std::pair<QString, QString> faults[] = {
        {u"TaxPercent IS NULL"_s, u"goods without a tax rate, which can't be sold"_s},
        {u"UnitPrice IS NULL"_s, u"goods without a price, which can't be sold"_s},
        {u"ProdCode LIKE '*''*'"_s, u"goods with an apostrophe in the code, which can't be looked up"_s},
        {u"ProdCode LIKE ' *' OR ProdCode LIKE '* '"_s, u"goods with blanks at an end of the code"_s},
        {u"ProdCode LIKE '%1*'"_s.arg(longer(longestCode)), u"goods with a code longer than its box"_s},
        {u"ProdDescription LIKE '%1*'"_s.arg(longer(longestName)), u"goods with a name longer than its box"_s},
    };
    for (const auto& [condition, kind] : faults)
        NoteRows(main, u"SELECT ProdCode FROM Products WHERE %1 GROUP BY ProdCode"_s.arg(condition), kind, findings);
    NoteRows(main,
             u"SELECT Products.ProdCode FROM Products INNER JOIN Tax ON Products.TaxID = Tax.TaxID"
             u" WHERE Products.TaxPercent <> Tax.Percent"_s,
             u"goods with another rate than that of their tax"_s, findings);
}

void CheckRowsOf(store::Database& main, const QString& table, int rowsExpected, Findings& findings) {
    auto rows = main.OpenRecordset(u"SELECT Count(*) AS N FROM [%1]"_s.arg(table));
    const qint64 found = rows[0].Whole();
    if (found != rowsExpected)
        findings.Note(u"tables with more or fewer rows than delivered"_s, u"%1 (%2)"_s.arg(table).arg(found));
}

}  // namespace

void CheckReferences(store::Database& main, Findings& findings) {
    for (const Reference& reference : References()) CheckReference(main, reference, findings);
    for (const TableField& key : NumberKeys()) CheckNumberKey(main, key, findings);
    CheckRepeats(main, {u"Invoices"_s, u"InvoiceID"_s}, findings);
    CheckRepeats(main, {u"Sales"_s, u"SalesID"_s}, findings);
    NoteRows(main, u"SELECT ProdCode FROM Products WHERE Qty < 0 GROUP BY ProdCode"_s,
             u"products with a stock below zero"_s, findings);
    NoteRows(main, u"SELECT ProdCode FROM Products WHERE Tab > 319 GROUP BY ProdCode"_s,
             u"products on a button that is not there"_s, findings);
    NoteRows(main, u"SELECT Tab, Count(*) AS N FROM Products WHERE Tab > -1 GROUP BY Tab HAVING Count(*) > 1"_s,
             u"buttons of the click table with more than one product"_s, findings);
    CheckGoods(main, findings);
    CheckRowsOf(main, u"TabControl"_s, 10, findings);
    CheckRowsOf(main, u"Company"_s, 1, findings);
}

}  // namespace tool
