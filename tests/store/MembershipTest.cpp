#include "store/StoreTestBase.h"

namespace store::test {

// Which rows a cursor has, and when: what the cases of tests/data/store/membership.txt cannot say.
using MembershipTest = StoreTest;

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

}  // namespace store::test
