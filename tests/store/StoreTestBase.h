#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "store/Database.h"
#include "support/Engines.h"
#include "support/ErrorOf.h"
#include "support/Rows.h"
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
using drivers::AddRows;
using drivers::RowsOf;
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
        QStringList rows;
        for (int i = first; i <= last; ++i) rows += u"ProdCode=%1 | ProdDescription=product %1 | Qty=%1"_s.arg(i);
        Database::Batch batch(*store);
        AddRows(*store, u"Products"_s, rows);
        batch.Commit();
    }
    void AddTaxes(QStringList ids) {
        for (QString& id : ids) id = u"TaxID=%1 | Name=tax %1"_s.arg(id);
        AddRows(*store, u"Tax"_s, ids);
    }
    qsizetype Taxes() { return Rows(u"SELECT TaxID FROM Tax"_s).size(); }
    QStringList Rows(const QString& query) { return RowsOf(*store, query); }

    QTemporaryDir folder_{FolderTemplate()};
    const Place place_ = drivers::OnServer() ? Place::Server(drivers::ServerForTest()) : Place(StorePath());
    std::unique_ptr<Database> store = Database::Create(place_, MainSchema());
};

}  // namespace store::test
