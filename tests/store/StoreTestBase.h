#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "store/Database.h"
#include "support/ErrorOf.h"
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

inline Money Units(qint64 tenThousandths) {
    return Money::FromUnits(tenThousandths);
}

// A new main store in a folder of its own; the tests see it through Database and Recordset alone.
class StoreTest : public testing::Test {
protected:
    StoreTest() { values::SetUserLocale(QLocale(u"en_US"_s)); }

    QString PathOf(const QString& name) const { return folder_.filePath(name); }
    QString StorePath() const { return PathOf(u"ORVA.pos"_s); }
    std::unique_ptr<Database> OpenAgain() const { return Database::Open(StorePath(), MainSchema()); }

    void AddProduct(const QString& code, const QString& name, Money quantity = {}) {
        auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
        products.AddNew();
        products[u"ProdCode"] = code;
        products[u"ProdDescription"] = name;
        products[u"Qty"] = quantity;
        products.Update();
    }
    void AddTax(const QString& id, const QString& name, Money percent = {}) {
        auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
        taxes.AddNew();
        taxes[u"TaxID"] = id;
        taxes[u"Name"] = name;
        taxes[u"Percent"] = percent;
        taxes.Update();
    }
    void AddTaxes(const QStringList& ids) {
        for (const QString& id : ids) AddTax(id, u"tax "_s + id);
    }
    // The first column of a query as texts, nulls as "".
    static QStringList Column(Database& database, const QString& query) {
        QStringList texts;
        auto rows = database.OpenRecordset(query);
        for (auto& row : rows) texts += row[0].TextOrEmpty();
        return texts;
    }
    QStringList Column(const QString& query) { return Column(*store, query); }

    QTemporaryDir folder_;
    std::unique_ptr<Database> store = Database::Create(StorePath(), MainSchema());
};

}  // namespace store::test
