#include <algorithm>
#include <functional>

#include "store/StoreTestBase.h"

namespace store::test {

// Which rows a cursor has, and when: it keeps its rows whatever others do.
class MembershipTest : public StoreTest {
protected:
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
    static QStringList Codes(Recordset& products) {
        QStringList codes;
        for (auto& row : products) codes += row[u"ProdCode"].Text();
        return codes;
    }
};

TEST_F(MembershipTest, LeavesOutRowsThatOthersAddLater) {
    AddProducts(1, 40);
    const auto other = OpenAgain();
    for (const auto& query : {u"SELECT * FROM Products"_s, u"SELECT * FROM Products WHERE Qty > 0 ORDER BY Qty"_s}) {
        auto products = store->OpenRecordset(query);
        const auto before = Codes(products).size();
        auto theirs = other->OpenRecordset(u"SELECT * FROM Products"_s);
        theirs.AddNew();
        theirs[u"ProdCode"] = u"x%1"_s.arg(before);
        theirs[u"Qty"] = 5;
        theirs.Update();
        EXPECT_EQ(Codes(products).size(), before);
        products.MoveLast();
        EXPECT_EQ(products.RecordCount(), before);
    }
}

TEST_F(MembershipTest, KeepsTheRowsOfASnapshotAsTheyWere) {
    AddProducts(1, 3);
    const auto query = u"SELECT ProdCode, Qty FROM Products WHERE Qty > 0 ORDER BY Qty"_s;
    auto cursor = store->OpenRecordset(query);
    auto snapshot = store->OpenSnapshot(query);
    store->Execute(u"UPDATE Products SET Qty = '9' WHERE ProdCode = '1'"_s);
    store->Execute(u"DELETE * FROM Products WHERE ProdCode = '2'"_s);

    EXPECT_EQ(snapshot[u"Qty"].Money(), Money::FromWhole(1));
    EXPECT_EQ(Codes(snapshot), QStringList({u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_FALSE(snapshot.Updatable());
    EXPECT_EQ(ErrorOf([&] { snapshot.AddNew(); }), ReadOnly);
    cursor.Move(0);
    EXPECT_EQ(cursor[u"Qty"].Money(), Money::FromWhole(9));
    EXPECT_EQ(Column(query), QStringList({u"3"_s, u"1"_s}));
    snapshot = store->OpenSnapshot(query);
    EXPECT_EQ(Codes(snapshot), QStringList({u"3"_s, u"1"_s}));
}

TEST_F(MembershipTest, ListsTheRowsOfOneMomentThoughTheyComeInLater) {
    AddProducts(1, 20'000);
    const auto other = OpenAgain();
    const auto firstOf = [](Listing& rows) { return rows.At(0, rows.Column(u"prodcode")).TextOrEmpty(); };
    auto all = store->OpenListing(u"SELECT Qty, ProdCode FROM Products"_s);
    auto cursor = store->OpenRecordset(u"SELECT * FROM Products WHERE Qty > 19998"_s);
    EXPECT_GE(all.WaitFor(1), 1);
    other->Execute(u"DELETE * FROM Products WHERE ProdCode <> '20000'"_s);
    EXPECT_EQ(all.WaitFor(1'000'000), 20'000);
    EXPECT_TRUE(all.IsWhole());
    EXPECT_EQ(all.At(19'998, 0).ToMoney(), Money::FromWhole(19'999));
    EXPECT_EQ(firstOf(all), u"1");
    EXPECT_EQ(ErrorOf([&] { all.Column(u"Nothing"); }), ItemNotFound);

    auto left = store->OpenListing(u"SELECT * FROM Products WHERE Qty > 0 ORDER BY Qty"_s);
    EXPECT_EQ(left.WaitFor(1'000'000), 1);
    EXPECT_EQ(firstOf(left), u"20000");
    auto now = cursor.ListNow();
    EXPECT_EQ(now.WaitFor(1), 1);
    EXPECT_EQ(firstOf(now), u"20000");

    // What is written but not committed is seen too.
    Database::Batch batch(*store);
    store->Execute(u"UPDATE Products SET ProdCode = 'x'"_s);
    auto pending = store->OpenListing(u"SELECT ProdCode FROM Products"_s);
    EXPECT_EQ(pending.WaitFor(1), 1);
    EXPECT_EQ(firstOf(pending), u"x");
}

TEST_F(MembershipTest, PutsItsOwnAdditionsBehindTheOtherRows) {
    AddProducts(1, 600);
    for (const auto& query : {u"SELECT * FROM Products"_s, u"SELECT * FROM Products WHERE Qty < 1000"_s}) {
        auto products = store->OpenRecordset(query);
        for (const auto& code : {u"new a "_s, u"new b "_s}) {
            products.AddNew();
            products[u"ProdCode"] = code + query;
            products[u"Qty"] = 5000;
            products.Update();
        }
        products.SetBookmark(products.LastModified());
        EXPECT_TRUE(products[u"ProdCode"].Text().startsWith(u"new b"));
        products.MovePrevious();
        EXPECT_TRUE(products[u"ProdCode"].Text().startsWith(u"new a"));
        products.MovePrevious();
        const QString last = products[u"ProdCode"].Text();
        products.MoveNext();
        EXPECT_TRUE(products[u"ProdCode"].Text().startsWith(u"new a"));
        products.MoveLast();
        EXPECT_TRUE(products[u"ProdCode"].Text().startsWith(u"new b"));
        const QStringList codes = Codes(products);
        EXPECT_EQ(codes.size(), products.RecordCount());
        EXPECT_EQ(codes[codes.size() - 3], last);
    }
}

TEST_F(MembershipTest, KeepsRowsThatNoLongerMeetItsCondition) {
    Database::Batch batch(*store);
    auto periods = store->OpenRecordset(u"SELECT * FROM Sales"_s);
    for (int i = 1; i <= 300; ++i) {
        periods.AddNew();
        periods[u"SalesID"] = i;
        periods.Update();
    }
    auto open = store->OpenRecordset(u"SELECT Kas, Closed, Payed, Grupni FROM Sales WHERE Closed = False"_s);
    int closed = 0;
    for (open.MoveFirst(); !open.AtEOF(); open.MoveNext(), ++closed) {
        open.Edit();
        open[u"Closed"] = true;
        open[u"Grupni"] = 4;
        open.Update();
    }
    batch.Commit();
    EXPECT_EQ(closed, 300);
    EXPECT_TRUE(Column(u"SELECT SalesID FROM Sales WHERE Closed = False"_s).empty());
    EXPECT_EQ(Column(u"SELECT SalesID FROM Sales WHERE Grupni = 4"_s).size(), 300);
}

TEST_F(MembershipTest, ShowsPresentValuesWhenItIsWalkedAgain) {
    AddProducts(1, 300);
    const auto other = OpenAgain();
    auto products = store->OpenRecordset(u"SELECT ProdCode, Unit, [Unitprice]*[qty] AS iznos FROM Products "_s);
    EXPECT_EQ(Codes(products).size(), 300);
    other->Execute(u"UPDATE Products SET UnitPrice = '2.00', Unit = 'kg'"_s);
    AddProducts(301, 310);
    double sum = 0;
    for (auto& row : products) {
        sum += row[u"iznos"].Double();
        EXPECT_EQ(row[u"Unit"].Text(), u"kg"_s);
    }
    EXPECT_EQ(sum, 300 * 301);
}

TEST_F(MembershipTest, SkipsNoRowWhileItsOwnRowsAreDeletedOnTheWay) {
    AddProducts(1, 100);
    for (const auto& query : {u"SELECT * FROM Products"_s, u"SELECT * FROM Products WHERE Qty > 0"_s}) {
        auto products = store->OpenRecordset(query);
        int walked = 0;
        for (; !products.AtEOF(); products.MoveNext(), ++walked)
            if (products[u"Qty"].Whole() % 2 == 0) products.Delete();
        EXPECT_EQ(products.RecordCount(), 50);
        EXPECT_EQ(walked, query.contains(u"WHERE") ? 50 : 100);
    }
}

TEST_F(MembershipTest, KeepsCursorsOfOneShapeApart) {
    AddProducts(1, 400);
    auto first = store->OpenRecordset(u"SELECT * FROM Products WHERE ProdCode = '7'"_s);
    auto second = store->OpenRecordset(u"SELECT * FROM Products WHERE ProdCode = '8'"_s);
    EXPECT_EQ(first[u"ProdCode"].Text(), u"7"_s);
    EXPECT_EQ(second[u"ProdCode"].Text(), u"8"_s);
    auto left = store->OpenRecordset(u"SELECT * FROM Products"_s);
    auto right = store->OpenRecordset(u"SELECT * FROM Products"_s);
    for (; !left.AtEOF(); left.MoveNext(), right.MoveNext()) {
        ASSERT_EQ(left[u"ProdCode"].Text(), right[u"ProdCode"].Text());
        if (left[u"Qty"].Whole() == 20) right.Move(0);
    }
    EXPECT_TRUE(right.AtEOF());
}

TEST_F(MembershipTest, FindsTheFirstRowInItsOwnOrder) {
    AddProducts(1, 900);
    store->Execute(u"UPDATE Products SET Unit = 'kg' WHERE Qty > 700"_s);
    auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
    products.FindFirst(u"Unit = 'KG'"_s);
    EXPECT_FALSE(products.NoMatch());
    EXPECT_EQ(products[u"ProdCode"].Text(), u"701"_s);
    products.MoveNext();
    EXPECT_EQ(products[u"ProdCode"].Text(), u"702"_s);
    products.FindFirst(u"ProdCode = 'none'"_s);
    EXPECT_TRUE(products.NoMatch());
    EXPECT_EQ(products[u"ProdCode"].Text(), u"702"_s);

    auto ordered = store->OpenRecordset(u"SELECT ProdCode FROM Products WHERE Qty < 800 ORDER BY Qty DESC"_s);
    ordered.FindFirst(u"Unit = 'kg'"_s);
    EXPECT_EQ(ordered[u"ProdCode"].Text(), u"799"_s);
    ordered.FindFirst(u"Qty >= 800"_s);
    EXPECT_TRUE(ordered.NoMatch()) << "such rows are not in this cursor";

    products.AddNew();
    products[u"ProdCode"] = u"own"_s;
    products.Update();
    products.FindFirst(u"ProdCode = 'OWN'"_s);
    EXPECT_EQ(products.Bookmark(), products.LastModified());
    EXPECT_EQ(ErrorOf([&] { products.FindFirst(u"ProdCode = 'it's'"_s); }), SyntaxError);
    EXPECT_EQ(ErrorOf([&] { products.FindFirst(u"Nothing = 'x'"_s); }), UnknownField);
}

TEST_F(MembershipTest, KnowsEveryRowOfManyThousandsInOrder) {
    constexpr int count = 12'000;
    AddProducts(1, count);
    const auto all = [](int) { return true; };
    const auto some = [](int number) { return number > 100 || number % 10 == 8; };
    const std::vector<std::pair<QString, std::function<bool(int)>>> cases = {
        {{}, all},
        {u" ORDER BY ID DESC"_s, all},
        {u" WHERE ProdDescription LIKE '*O*'"_s, all},
        {u" WHERE ProdDescription LIKE '*o*' ORDER BY ID DESC"_s, all},
        {u" WHERE Qty > 100 OR ProdDescription LIKE '*8'"_s, some}};
    for (const int deleted : {0, 5'000}) {
        store->Execute(u"DELETE FROM Products WHERE ProdCode = '%1'"_s.arg(deleted));
        for (const auto& [condition, meets] : cases) {
            std::vector<qint64> expected, found;
            for (int number = 1; number <= count; ++number)
                if (number != deleted && meets(number)) expected.push_back(number);
            if (condition.contains(u"DESC")) std::ranges::reverse(expected);

            auto products = store->OpenRecordset(u"SELECT * FROM Products"_s + condition);
            products.MoveLast();
            for (auto& product : products) found.push_back(product[u"Qty"].Whole());
            EXPECT_EQ(found, expected) << condition.toStdString();
            EXPECT_EQ(products.RecordCount(), found.size());
        }
    }
}

TEST_F(MembershipTest, MarksRowsAndComesBackToThem) {
    AddProducts(1, 300);
    auto products = store->OpenRecordset(u"SELECT * FROM Products WHERE Qty > 0 ORDER BY Qty DESC"_s);
    products.Move(250);
    const Bookmark marked = products.Bookmark();
    const QString code = products[u"ProdCode"].Text();
    products.MoveFirst();
    products.SetBookmark(marked);
    EXPECT_EQ(products[u"ProdCode"].Text(), code);
    products.Delete();
    EXPECT_EQ(ErrorOf([&] { products.SetBookmark(marked); }), RowDeleted);
    EXPECT_EQ(ErrorOf([&] { products.LastModified(); }), NoCurrentRow);
}

}  // namespace store::test
