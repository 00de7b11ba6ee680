#include "store/StoreTestBase.h"

namespace store::test {

using RecordsetTest = StoreTest;

TEST_F(RecordsetTest, OpensOnItsFirstRowAndWalksToTheEnd) {
    AddTaxes({u"A"_s, u"B"_s, u"C"_s});
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    EXPECT_TRUE(taxes.Updatable());
    EXPECT_FALSE(taxes.AtBOF());
    EXPECT_FALSE(taxes.AtEOF());
    EXPECT_GT(taxes.RecordCount(), 0);

    QStringList ids;
    for (; !taxes.AtEOF(); taxes.MoveNext()) ids += taxes[u"taxid"].Text();
    EXPECT_EQ(ids, (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    EXPECT_EQ(ErrorOf([&] { taxes.MoveNext(); }), NoCurrentRow);
    EXPECT_EQ(ErrorOf([&] { taxes[u"TaxID"].Text(); }), NoCurrentRow);

    taxes.MovePrevious();
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"C"_s);
    taxes.MoveFirst();
    taxes.MovePrevious();
    EXPECT_TRUE(taxes.AtBOF());
    EXPECT_FALSE(taxes.AtEOF());
    EXPECT_EQ(ErrorOf([&] { taxes.MovePrevious(); }), NoCurrentRow);
    EXPECT_EQ(ErrorOf([&] { taxes.Edit(); }), NoCurrentRow);
    taxes.MoveNext();
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"A"_s);
    taxes.Move(2);
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"C"_s);
    taxes.Move(-1);
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"B"_s);
}

TEST_F(RecordsetTest, HasBothEndsWhenEmpty) {
    for (const auto& query : {u"SELECT * FROM Tax"_s, u"SELECT * FROM Tax WHERE TaxID = 'X'"_s,
                              u"SELECT TaxID, Max(Percent) AS m FROM Tax GROUP BY TaxID"_s}) {
        auto rows = store->OpenRecordset(query);
        EXPECT_TRUE(rows.AtBOF() && rows.AtEOF());
        EXPECT_EQ(rows.RecordCount(), 0);
        EXPECT_EQ(ErrorOf([&] { rows.MoveFirst(); }), NoCurrentRow);
        EXPECT_EQ(ErrorOf([&] { rows.MoveLast(); }), NoCurrentRow);
        EXPECT_EQ(ErrorOf([&] { rows.MoveNext(); }), NoCurrentRow);
        EXPECT_EQ(ErrorOf([&] { rows.MovePrevious(); }), NoCurrentRow);
        EXPECT_EQ(ErrorOf([&] { rows.Move(0); }), NoCurrentRow);
        EXPECT_EQ(ErrorOf([&] { rows.Bookmark(); }), NoCurrentRow);
        for (auto& row : rows) FAIL() << row.RecordCount();
    }
}

TEST_F(RecordsetTest, GivesFieldsByNameInAnyCaseAndByPosition) {
    AddTax(u"P"_s, u"Common"_s, Units(170000));
    auto taxes = store->OpenRecordset(u"Select TaxID, [percent] FROM tax"_s);
    EXPECT_EQ(taxes.FieldCount(), 2);
    EXPECT_EQ(taxes.FieldName(1).toLower(), u"percent"_s);
    EXPECT_EQ(taxes.FieldType(1), Type::Decimal);
    EXPECT_EQ(taxes[u"PERCENT"].Get(), Value(Units(170000)));
    EXPECT_EQ(taxes[0].Text(), u"P"_s);
    EXPECT_EQ(ErrorOf([&] { taxes[u"Name"]; }), ItemNotFound);
    EXPECT_EQ(ErrorOf([&] { taxes[2]; }), ItemNotFound);
    EXPECT_EQ(ErrorOf([&] { taxes[-1]; }), ItemNotFound);
    EXPECT_EQ(ErrorOf([&] { taxes.FieldName(2); }), ItemNotFound);
}

TEST_F(RecordsetTest, CountsAllRowsAfterMoveLast) {
    Database::Batch batch(*store);
    for (int i = 1; i <= 700; ++i) AddProduct(QString::number(i), u"product"_s, Money::FromWhole(i % 3));
    batch.Commit();
    for (const auto& query : {u"SELECT * FROM Products"_s, u"SELECT ProdCode FROM Products WHERE Qty >= 0"_s,
                              u"SELECT ProdCode FROM Products ORDER BY ID"_s}) {
        auto products = store->OpenRecordset(query);
        EXPECT_GT(products.RecordCount(), 0);
        products.MoveLast();
        EXPECT_EQ(products.RecordCount(), 700);
        EXPECT_EQ(products[u"ProdCode"].Text(), u"700"_s);
        products.MovePrevious();
        EXPECT_EQ(products[u"ProdCode"].Text(), u"699"_s);

        int forward = 0;
        for (auto& row : products) EXPECT_EQ(row[u"ProdCode"].Text(), QString::number(++forward));
        EXPECT_EQ(forward, 700);
        int backward = 700;
        for (products.MoveLast(); !products.AtBOF(); products.MovePrevious())
            ASSERT_EQ(products[u"ProdCode"].Text(), QString::number(backward--));
        EXPECT_EQ(backward, 0);
    }
}

TEST_F(RecordsetTest, TakesAJoinAtOpeningAndLetsNothingBeChanged) {
    AddTax(u"P"_s, u"Common"_s);
    AddProduct(u"1"_s, u"Coffee"_s);
    store->Execute(u"UPDATE Products SET TaxID = 'P'"_s);
    auto join = store->OpenRecordset(
        u"SELECT Products.ProdCode, Tax.Name FROM Products INNER JOIN Tax ON Products.TaxID = Tax.TaxID"_s);
    EXPECT_FALSE(join.Updatable());
    store->Execute(u"DELETE * FROM Tax"_s);
    EXPECT_EQ(join[u"Name"].Text(), u"Common"_s);
    EXPECT_EQ(ErrorOf([&] { join.AddNew(); }), ReadOnly);
    EXPECT_EQ(ErrorOf([&] { join.Edit(); }), ReadOnly);
    EXPECT_EQ(ErrorOf([&] { join.Update(); }), ReadOnly);
    EXPECT_EQ(ErrorOf([&] { join.Delete(); }), ReadOnly);
    EXPECT_EQ(ErrorOf([&] { join[u"Name"] = u"x"_s; }), ReadOnly);
    EXPECT_EQ(ErrorOf([&] { join.FindFirst(u"Name = 'x'"_s); }), NotSupported);
    const Bookmark first = join.Bookmark();
    join.MoveNext();
    join.SetBookmark(first);
    EXPECT_EQ(join[0].Text(), u"1"_s);
}

TEST_F(RecordsetTest, GivesOneRowWithANullForAMaximumOfNothing) {
    auto rows = store->OpenRecordset(u"SELECT Max(Val([InvoiceID])) AS [current] FROM Invoices"_s);
    EXPECT_EQ(rows.RecordCount(), 1);
    EXPECT_TRUE(rows[u"current"].IsNull());
    EXPECT_EQ(ErrorOf([&] { rows[u"current"].Text(); }), values::InvalidUseOfNull);
}

TEST_F(RecordsetTest, KnowsANumberByItsValueAndARowByItsText) {
    auto invoices = store->OpenRecordset(u"SELECT * FROM Invoices"_s);
    for (const auto& id : {u"007"_s, u"7"_s, u"12A"_s, u" 9"_s, u"x"_s}) {
        invoices.AddNew();
        invoices[u"InvoiceID"] = id;
        invoices.Update();
    }
    EXPECT_EQ(Column(u"SELECT Max(Val(InvoiceID)) FROM Invoices"_s), QStringList{u"12"_s});
    EXPECT_EQ(Column(u"SELECT InvoiceID FROM Invoices WHERE InvoiceID = '7'"_s), QStringList{u"7"_s});
    EXPECT_EQ(Column(u"SELECT InvoiceID FROM Invoices ORDER BY Val(InvoiceID)"_s).last(), u"12A"_s);
}

TEST_F(RecordsetTest, ComputesExactlyAndNamesComputedColumns) {
    AddProduct(u"1"_s, u"Coffee"_s, Units(-15000));
    store->Execute(u"UPDATE Products SET UnitPrice = '2.35'"_s);
    auto rows = store->OpenRecordset(u"SELECT ProdCode, [Unitprice]*[qty] AS iznos FROM Products "_s);
    EXPECT_EQ(rows[u"iznos"].Get(), Value(-3.525));
    EXPECT_EQ(rows.FieldType(1), Type::Double);
    rows.Edit();
    EXPECT_EQ(ErrorOf([&] { rows[u"iznos"] = 1; }), ReadOnly);
    EXPECT_EQ(rows.EditMode(), EditState::Editing);
}

TEST_F(RecordsetTest, AnswersEveryCallWithAnErrorWhenClosed) {
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    taxes.Close();
    EXPECT_FALSE(taxes.IsOpen());
    EXPECT_EQ(ErrorOf([&] { taxes.MoveFirst(); }), NoCurrentRow);
    EXPECT_EQ(ErrorOf([&] { taxes[u"TaxID"]; }), NoCurrentRow);
    EXPECT_EQ(ErrorOf([&] { taxes.RecordCount(); }), NoCurrentRow);
    taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    EXPECT_TRUE(taxes.AtEOF());
}

TEST_F(RecordsetTest, RefusesAnActionAsACursorAndACursorAsAnAction) {
    EXPECT_EQ(ErrorOf([&] { store->OpenRecordset(u"DELETE * FROM Tax"_s); }), NotSupported);
    EXPECT_EQ(ErrorOf([&] { store->Execute(u"SELECT * FROM Tax"_s); }), NotSupported);
}

TEST_F(RecordsetTest, CountsTheRowsAnActionTouched) {
    AddTaxes({u"A"_s, u"B"_s, u"C"_s});
    EXPECT_EQ(store->Execute(u"UPDATE Tax SET Del = True WHERE TaxID <> 'a'"_s), 2);
    EXPECT_EQ(Column(u"SELECT TaxID FROM Tax WHERE Del = False"_s), QStringList{u"A"_s});
    EXPECT_EQ(store->Execute(u"UPDATE Tax SET Percent = '1.5' WHERE TaxID = ''"_s), 0);
    EXPECT_EQ(store->Execute(u"DELETE * FROM Tax WHERE Del = True"_s), 2);
}

TEST_F(RecordsetTest, TellsAnOverflowOfASum) {
    for (const auto& id : {u"A"_s, u"B"_s}) AddTax(id, id, Units(std::numeric_limits<qint64>::max()));
    EXPECT_EQ(ErrorOf([&] { store->OpenRecordset(u"SELECT Sum(Percent) AS s FROM Tax"_s); }), values::Overflow);
}

}  // namespace store::test
