#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "store/Database.h"
#include "support/Engines.h"
#include "support/ErrorOf.h"
#include "support/TestFolder.h"
#include "values/Locale.h"

// So that a failed comparison shows words instead of bytes.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace values {
inline void PrintTo(const Value& value, std::ostream* out) {
    *out << static_cast<int>(value.GetKind()) << ':' << value.TextOrEmpty().toStdString();
}
}  // namespace values

namespace store::test {

using namespace Qt::StringLiterals;
using values::Money;
using values::Value;

// A new main store in a folder of its own; the tests see it through Database and Recordset alone.
class StoreTest : public testing::Test {
protected:
    StoreTest() { values::SetUserLocale(QLocale(u"en_US"_s)); }

    QString PathOf(const QString& name) const { return folder_.filePath(name); }
    QString StorePath() const { return PathOf(u"ORVA.pos"_s); }
    std::unique_ptr<Database> OpenAgain() const { return Database::Open(place_, MainSchema()); }

    void AddProducts(int first, int last) {
        Database::Batch batch(*store);
        auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
        for (int i = first; i <= last; ++i) {
            products.AddNew();
            products[u"ProdCode"] = QString::number(i);
            products[u"ProdDescription"] = u"product %1"_s.arg(i);
            products[u"Qty"] = i;
            products.Update();
        }
        batch.Commit();
    }
    // Fields as "NAME=TEXT | NAME=TEXT".
    static void SetAll(Recordset& rows, const QString& fields) {
        for (const QString& field : fields.split(u" | "_s)) rows[field.section(u'=', 0, 0)] = field.section(u'=', 1);
    }
    static void Add(Database& database, const QString& table, const QString& fields) {
        auto rows = database.OpenRecordset(u"SELECT * FROM "_s + table);
        rows.AddNew();
        if (!fields.isEmpty()) SetAll(rows, fields);
        rows.Update();
    }
    // Cells divided by |.
    static QString Rows(Database& database, const QString& query) {
        QStringList lines;
        auto rows = database.OpenRecordset(query);
        for (auto& row : rows) {
            QStringList cells;
            for (int i = 0; i < row.FieldCount(); ++i) cells += row[i].TextOrEmpty();
            lines += cells.join(u'|');
        }
        return lines.join(u'\n');
    }
    void AddTaxes(const QStringList& ids) {
        auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
        for (const QString& id : ids) {
            taxes.AddNew();
            taxes[u"TaxID"] = id;
            taxes[u"Name"] = u"tax "_s + id;
            taxes.Update();
        }
    }
    qsizetype Taxes() { return Column(u"SELECT TaxID FROM Tax"_s).size(); }
    // The first column of a query as texts, nulls as "".
    static QStringList Column(Database& database, const QString& query) {
        QStringList texts;
        auto rows = database.OpenRecordset(query);
        for (auto& row : rows) texts += row[0].TextOrEmpty();
        return texts;
    }
    QStringList Column(const QString& query) { return Column(*store, query); }

    QTemporaryDir folder_{FolderTemplate()};
    const Place place_ = drivers::OnServer() ? Place::Server(drivers::ServerForTest()) : Place(StorePath());
    std::unique_ptr<Database> store = Database::Create(place_, MainSchema());
};

}  // namespace store::test
