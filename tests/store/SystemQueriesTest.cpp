#include <QFile>

#include "store/StoreTestBase.h"

namespace store::test {

// Every query text that the program sends, on a small shop.
class SystemQueriesTest : public StoreTest {
protected:
    SystemQueriesTest() {
        QFile file(QStringLiteral(TEST_DATA "/dialect/system_queries.txt"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
            if (!line.trimmed().isEmpty() && !line.startsWith(u'#')) queries += line;
    }

    Database& StoreOf(const QString& query) { return query.contains(u"Options") ? *options : *store; }
    static bool IsAction(const QString& query) {
        return query.startsWith(u"UPDATE", Qt::CaseInsensitive) || query.startsWith(u"DELETE", Qt::CaseInsensitive);
    }

    void FillShop() {
        AddTax(u"P"_s, u"common"_s, Money::FromWhole(17));
        AddProduct(u"3850104003217"_s, u"Coffee"_s, Money::FromWhole(5));
        store->Execute(u"UPDATE Products SET TaxID = 'P', UnitPrice = '2.50', Tab = 3"_s);
        auto sales = store->OpenRecordset(u"SELECT * FROM Sales"_s);
        sales.AddNew();
        sales[u"SalesID"] = 7;
        sales[u"TotalSales"] = u"11.70"_s;
        sales[u"DateGenerated"] = QDate(2024, 3, 25);
        sales.Update();
        auto invoices = store->OpenRecordset(u"SELECT * FROM Invoices"_s);
        auto details = store->OpenRecordset(u"SELECT * FROM SalesDetails"_s);
        for (int i = 9; i <= 12; ++i) {
            invoices.AddNew();
            invoices[u"SalesID"] = 7;
            invoices[u"InvoiceID"] = i;
            invoices[u"OrNo"] = i;
            invoices[u"CashierID"] = 1;
            invoices[u"DateSold"] = QDate(2024, 3, 25);
            invoices[u"CashAmount"] = u"11.70"_s;
            invoices[u"TaxTotal"] = u"1.70"_s;
            invoices.Update();
            details.AddNew();
            details[u"InvoiceID"] = i;
            details[u"ProdCode"] = u"3850104003217"_s;
            details[u"TaxID"] = u"P"_s;
            details[u"QtySold"] = 2;
            details[u"Amount"] = u"11.70"_s;
            details[u"TaxAmount"] = u"1.70"_s;
            details.Update();
        }
    }

    QStringList queries;
    std::unique_ptr<Database> options = Database::Create(PathOf(u"opt.pos"_s), OptionsSchema());
};

TEST_F(SystemQueriesTest, RunAll) {
    FillShop();
    EXPECT_GT(queries.size(), 60);
    int withRows = 0;
    for (const QString& query : queries) {
        SCOPED_TRACE(query.toStdString());
        Database& database = StoreOf(query);
        if (IsAction(query)) {
            EXPECT_EQ(ErrorOf([&] { database.Execute(query); }), 0);
            continue;
        }
        EXPECT_EQ(ErrorOf([&] {
                      auto rows = database.OpenRecordset(query);
                      for (auto& row : rows)
                          for (int i = 0; i < row.FieldCount(); ++i) row[i].TextOrEmpty();
                      withRows += rows.RecordCount() > 0;
                  }),
                  0);
    }
    EXPECT_GT(withRows, 20);
}

TEST_F(SystemQueriesTest, UseAnIndexForEveryEquality) {
    for (const QString& query : queries) {
        QString rest = query;
        rest.remove(u">="_s).remove(u"<="_s);
        if (!rest.contains(u'=') || (IsAction(query) && !query.contains(u"WHERE"))) continue;
        EXPECT_THAT(StoreOf(query).ExplainPlan(query).toStdString(),
                    testing::Not(testing::ContainsRegex("SCAN [^ \n]+(\n|$)")))
            << query.toStdString();
    }
}

TEST_F(SystemQueriesTest, FindNextNumbersDaysAndPlacesByIndex) {
    const QStringList indexed = {
        u"SELECT Max(Val([InvoiceID])) AS [current] FROM Invoices"_s,
        u"SELECT Max(Val(Sales.SalesID)) AS [current] FROM Sales"_s,
        u"SELECT Max(Val([LoginNo])) AS [current] FROM Login"_s,
        u"SELECT Max(Grupni) AS zadnji FROM Sales"_s,
        u"SELECT InvoiceID FROM Invoices ORDER BY Val(OrNo)"_s,
        u"SELECT ProdCode FROM Products WHERE tab > -1"_s,
        u"SELECT OrNo FROM Invoices WHERE DateSold >= #03-01-2024# AND DateSold <= #03-31-2024#"_s,
        u"SELECT LogInNo FROM Login WHERE Date = #03-01-2024#"_s};
    for (const QString& query : indexed) {
        const std::string plan = store->ExplainPlan(query).toStdString();
        EXPECT_THAT(plan, testing::HasSubstr(" INDEX ")) << query.toStdString();
        EXPECT_THAT(plan, testing::Not(testing::HasSubstr("TEMP B-TREE"))) << query.toStdString();
    }
}

}  // namespace store::test
