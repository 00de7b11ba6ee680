#include <QRegularExpression>

#include "store/StoreTestBase.h"
#include "support/Files.h"

namespace store::test {

// Every query text that the program sends, on a small shop.
class SystemQueriesTest : public StoreTest {
protected:
    SystemQueriesTest() { queries = LinesOf(u"dialect/system_queries.txt"_s); }

    Database& StoreOf(const QString& query) { return query.contains(u"Options") ? *options : *store; }
    static bool IsAction(const QString& query) {
        return query.startsWith(u"UPDATE", Qt::CaseInsensitive) || query.startsWith(u"DELETE", Qt::CaseInsensitive);
    }

    // Lines of a file in tests/data without those that comment.
    static QStringList LinesOf(const QString& name) {
        const QByteArray text = drivers::ReadFile(QStringLiteral(TEST_DATA "/") + name);
        return QString::fromUtf8(text).split(u'\n').filter(QRegularExpression(u"^[^#]"_s));
    }

    void FillShop() {
        for (const QString& line : LinesOf(u"store/small_shop.txt"_s)) {
            const QString table = line.section(u" | "_s, 0, 0);
            AddRows(StoreOf(table), table, {line.section(u" | "_s, 1)});
        }
    }

    // The rows, of an action the number of those that it touched.
    QString AnswerTo(const QString& query) {
        Database& database = StoreOf(query);
        return IsAction(query) ? QString::number(database.Execute(query)) + u" rows"_s
                               : RowsOf(database, query).join(u'\n');
    }

    QStringList queries;
    std::unique_ptr<Database> options = Database::Create(PathOf(u"opt.pos"_s), OptionsSchema());
};

TEST_F(SystemQueriesTest, GiveTheirRowsOnASmallShop) {
    FillShop();
    QString answers;
    for (const QString& query : queries) answers += u"> "_s + query + u'\n' + AnswerTo(query) + u'\n';
    const auto file = u"store/small_shop_answers.txt"_s;
    if (qEnvironmentVariableIsSet("VELTON_REWRITE"))
        drivers::WriteFile(QStringLiteral(TEST_DATA "/") + file, answers.toUtf8());
    const QStringList expected = LinesOf(file);
    const QStringList given = answers.split(u'\n', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < qMax(expected.size(), given.size()); ++i)
        ASSERT_EQ(given.value(i), expected.value(i)) << "line " << i + 1;
}

TEST_F(SystemQueriesTest, UseAnIndexForEveryEquality) {
    for (const QString& query : queries) {
        QString rest = query;
        rest.remove(u">="_s).remove(u"<="_s);
        if (!rest.contains(u'=') || (IsAction(query) && !query.contains(u"WHERE"))) continue;
        EXPECT_THAT(StoreOf(query).ExplainPlan(query).toStdString(),
                    testing::Not(testing::ContainsRegex("SCAN [^ \n]+(\n|$)|Seq Scan")))
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
        EXPECT_THAT(plan, testing::ContainsRegex(" INDEX |Index (Only )?Scan")) << query.toStdString();
        EXPECT_THAT(plan, testing::Not(testing::ContainsRegex("TEMP B-TREE|Sort"))) << query.toStdString();
    }
}

}  // namespace store::test
