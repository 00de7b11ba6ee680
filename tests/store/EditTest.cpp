#include "store/StoreTestBase.h"

namespace store::test {

using EditTest = StoreTest;

TEST_F(EditTest, AddsARowWithDefaultsAndStaysWhereItWas) {
    AddTax(u"A"_s, u"first"_s);
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    taxes.AddNew();
    EXPECT_EQ(taxes.EditMode(), EditState::Adding);
    EXPECT_EQ(taxes[u"Del"].Get(), Value(false));
    EXPECT_TRUE(taxes[u"Name"].IsNull());
    taxes[u"TaxID"] = u"B"_s;
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"B"_s);
    taxes.Update();
    EXPECT_EQ(taxes.EditMode(), EditState::None);
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"A"_s);

    taxes.SetBookmark(taxes.LastModified());
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"B"_s);
    EXPECT_EQ(taxes.Bookmark(), taxes.LastModified());
    EXPECT_TRUE(taxes[u"Name"].IsNull());
    EXPECT_FALSE(taxes[u"Del"].YesNo());
    taxes.MoveNext();
    EXPECT_TRUE(taxes.AtEOF());
}

TEST_F(EditTest, GivesColumnsTheirDefaults) {
    AddProduct(u"1"_s, u"one"_s);
    AddProduct(u"2"_s, u"two"_s);
    auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
    EXPECT_EQ(products[u"Tab"].Get(), Value(-1));
    const qint64 first = products[u"ID"].Whole();
    products.MoveNext();
    EXPECT_GT(products[u"ID"].Whole(), first);

    auto sales = store->OpenRecordset(u"SELECT * FROM Sales"_s);
    sales.AddNew();
    sales.Update();
    sales.MoveFirst();
    EXPECT_EQ(sales[u"Kas"].Get(), Value(0));
    EXPECT_EQ(sales[u"Closed"].Get(), Value(false));
    EXPECT_TRUE(sales[u"Grupni"].IsNull());
    EXPECT_TRUE(sales[u"TotalSales"].IsNull());
}

TEST_F(EditTest, NumbersProductsByItselfAndNeverAgainWithTheSameNumber) {
    AddProduct(u"1"_s, u"one"_s);
    auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
    const qint64 id = products[u"ID"].Whole();
    products.Edit();
    EXPECT_EQ(ErrorOf([&] { products[u"ID"] = 99; }), ReadOnly);
    products.Delete();
    AddProduct(u"1"_s, u"one again"_s);
    EXPECT_GT(Column(u"SELECT ID FROM Products"_s).first().toLongLong(), id);
    products.AddNew();
    EXPECT_EQ(ErrorOf([&] { products[u"ID"] = 0; }), ConversionFailed);
    products[u"ID"] = 500;
    products.Update();
    products.SetBookmark(products.LastModified());
    EXPECT_EQ(products[u"ID"].Whole(), 500);
}

TEST_F(EditTest, ChangesTheCurrentRowAndShowsItAtOnce) {
    AddTaxes({u"A"_s, u"B"_s});
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    taxes.Edit();
    EXPECT_EQ(taxes.EditMode(), EditState::Editing);
    taxes[u"Name"] = u"new"_s;
    EXPECT_EQ(taxes[u"Name"].Text(), u"new"_s);
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"A"_s);
    taxes.Update();
    EXPECT_EQ(taxes[u"Name"].Text(), u"new"_s);
    taxes.SetBookmark(taxes.LastModified());
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"A"_s);
    EXPECT_EQ(Column(u"SELECT Name FROM Tax"_s), (QStringList{u"new"_s, u"tax B"_s}));
}

TEST_F(EditTest, DropsAPendingEditOnAMoveAndOnCancel) {
    AddTaxes({u"A"_s, u"B"_s});
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    const Bookmark first = taxes.Bookmark();
    const std::vector<std::function<void()>> drops = {[&] { taxes.CancelUpdate(); },
                                                      [&] { taxes.MoveNext(); },
                                                      [&] { taxes.MoveFirst(); },
                                                      [&] { taxes.MoveLast(); },
                                                      [&] { taxes.Move(0); },
                                                      [&] { taxes.SetBookmark(first); },
                                                      [&] { taxes.FindFirst(u"TaxID = 'zz'"_s); },
                                                      [&] { taxes.FindFirst(u"TaxID = 'b'"_s); }};
    for (const auto& drop : drops) {
        for (const bool adding : {false, true}) {
            taxes.MoveFirst();
            adding ? taxes.AddNew() : taxes.Edit();
            taxes[u"Name"] = u"lost"_s;
            drop();
            EXPECT_EQ(taxes.EditMode(), EditState::None);
            EXPECT_EQ(ErrorOf([&] { taxes.Update(); }), NoEditPending);
        }
    }
    EXPECT_EQ(Column(u"SELECT Name FROM Tax"_s), (QStringList{u"tax A"_s, u"tax B"_s}));
    EXPECT_EQ(ErrorOf([&] { taxes[u"Name"] = u"x"_s; }), NoEditPending);
    taxes.CancelUpdate();
}

TEST_F(EditTest, KeepsARefusedRowPending) {
    AddTaxes({u"A"_s, u"B"_s});
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    taxes.AddNew();
    taxes[u"TaxID"] = u"a"_s;
    taxes[u"Name"] = u"other"_s;
    EXPECT_EQ(ErrorOf([&] { taxes.Update(); }), DuplicateKey);
    EXPECT_EQ(taxes.EditMode(), EditState::Adding);
    taxes[u"TaxID"] = u"C"_s;
    taxes.Update();

    taxes.MoveFirst();
    taxes.Edit();
    taxes[u"Name"] = u"TAX b"_s;
    EXPECT_EQ(ErrorOf([&] { taxes.Update(); }), DuplicateKey);
    EXPECT_EQ(taxes.EditMode(), EditState::Editing);
    taxes[u"Name"] = u"TAX A"_s;
    taxes.Update();
    EXPECT_EQ(Column(u"SELECT Name FROM Tax"_s), (QStringList{u"TAX A"_s, u"tax B"_s, u"other"_s}));
    EXPECT_EQ(ErrorOf([&] { store->Execute(u"UPDATE Tax SET TaxID = 'x'"_s); }), DuplicateKey);
    EXPECT_EQ(Column(u"SELECT TaxID FROM Tax"_s), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
}

TEST_F(EditTest, HoldsEveryUniqueKeyOfTheDeliveredStore) {
    const std::vector<std::pair<QString, QString>> keys = {
        {u"Products"_s, u"ProdCode"_s}, {u"Tax"_s, u"TaxID"_s},
        {u"Tax"_s, u"Name"_s},          {u"Users"_s, u"UserID"_s},
        {u"Users"_s, u"UserName"_s},    {u"Custumer"_s, u"Sifra"_s},
        {u"Unit"_s, u"Abr"_s},          {u"TabControl"_s, u"TabControl"_s}};
    const std::vector<std::pair<QString, QString>> free = {{u"Sales"_s, u"SalesID"_s},
                                                           {u"Invoices"_s, u"InvoiceID"_s},
                                                           {u"Login"_s, u"LogInNo"_s},
                                                           {u"ProductsCon"_s, u"SIF"_s}};
    const auto addTwice = [this](const auto& key) {
        auto rows = store->OpenRecordset(u"SELECT * FROM "_s + key.first);
        return ErrorOf([&] {
            for (int i = 0; i < 2; ++i) {
                rows.AddNew();
                rows[key.second] = u"7"_s;
                rows.Update();
            }
        });
    };
    for (const auto& key : keys) EXPECT_EQ(addTwice(key), DuplicateKey) << key.first.toStdString();
    for (const auto& key : free) EXPECT_EQ(addTwice(key), 0) << key.first.toStdString();
}

TEST_F(EditTest, DeletesTheCurrentRowAndGoesOnBehindIt) {
    AddTaxes({u"A"_s, u"B"_s, u"C"_s});
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    taxes.MoveNext();
    taxes.Delete();
    EXPECT_EQ(ErrorOf([&] { taxes[u"Name"].Text(); }), RowDeleted);
    EXPECT_EQ(ErrorOf([&] { taxes.Edit(); }), RowDeleted);
    EXPECT_EQ(ErrorOf([&] { taxes.Delete(); }), RowDeleted);
    taxes.MoveNext();
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"C"_s);
    taxes.Delete();
    taxes.MovePrevious();
    EXPECT_EQ(taxes[u"TaxID"].Text(), u"A"_s);
    taxes.Delete();
    taxes.MoveNext();
    EXPECT_TRUE(taxes.AtEOF() && taxes.AtBOF());
    EXPECT_EQ(taxes.RecordCount(), 0);
    EXPECT_TRUE(Column(u"SELECT TaxID FROM Tax"_s).empty());
}

TEST_F(EditTest, AnswersForARowThatAnotherDeleted) {
    const auto other = OpenAgain();
    for (const auto& query : {u"SELECT * FROM Tax"_s, u"SELECT * FROM Tax WHERE TaxID <> ''"_s}) {
        store->Execute(u"DELETE * FROM Tax"_s);
        AddTaxes({u"A"_s, u"B"_s, u"C"_s});
        auto taxes = store->OpenRecordset(query);
        EXPECT_EQ(taxes[u"TaxID"].Text(), u"A"_s);
        other->Execute(u"DELETE * FROM Tax WHERE TaxID <> 'C'"_s);
        EXPECT_EQ(ErrorOf([&] { taxes[u"Name"].Text(); }), RowDeleted);
        EXPECT_EQ(ErrorOf([&] { taxes.Edit(); }), RowDeleted);
        EXPECT_EQ(ErrorOf([&] { taxes.Delete(); }), RowDeleted);
        taxes.MoveNext();
        EXPECT_EQ(ErrorOf([&] { taxes[u"Name"].Text(); }), RowDeleted);
        taxes.MoveNext();
        EXPECT_EQ(taxes[u"TaxID"].Text(), u"C"_s);
        taxes.MoveNext();
        EXPECT_TRUE(taxes.AtEOF());
    }
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    taxes.Edit();
    taxes[u"Name"] = u"late"_s;
    other->Execute(u"DELETE * FROM Tax"_s);
    EXPECT_EQ(ErrorOf([&] { taxes.Update(); }), RowDeleted);
    EXPECT_EQ(taxes.EditMode(), EditState::Editing);
}

TEST_F(EditTest, RereadsTheRowOnEachMove) {
    AddTaxes({u"A"_s, u"B"_s});
    const auto other = OpenAgain();
    for (Database* writer : {store.get(), other.get()}) {
        auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
        const QString name = taxes[u"Name"].Text();
        writer->Execute(u"UPDATE Tax SET Name = TaxID"_s);
        EXPECT_EQ(taxes[u"Name"].Text(), name) << "a row stays as it was read";
        taxes.Move(0);
        EXPECT_EQ(taxes[u"Name"].Text(), u"A"_s);
        taxes.MoveNext();
        EXPECT_EQ(taxes[u"Name"].Text(), u"B"_s);
        writer->Execute(u"UPDATE Tax SET Name = 'again' WHERE TaxID = 'A'"_s);
        taxes.MoveFirst();
        EXPECT_EQ(taxes[u"Name"].Text(), u"again"_s);
    }
}

TEST_F(EditTest, FailsOptimisticallyWhenTheRowChangedSinceEdit) {
    AddProduct(u"1"_s, u"Coffee"_s, Money::FromWhole(10));
    const auto other = OpenAgain();
    auto products = store->OpenRecordset(u"SELECT * FROM Products WHERE ProdCode = '1'"_s);
    products.LockEdits(false);
    products.Edit();
    products[u"Qty"] = products[u"Qty"].Money() - Money::FromWhole(3);
    other->Execute(u"UPDATE Products SET Qty = '6'"_s);
    EXPECT_EQ(ErrorOf([&] { products.Update(); }), RowChanged);
    EXPECT_EQ(products.EditMode(), EditState::Editing);
    EXPECT_EQ(products[u"Qty"].Money(), Money::FromWhole(7));

    products.CancelUpdate();
    products.Move(0);
    products.Edit();
    products[u"Qty"] = products[u"Qty"].Money() - Money::FromWhole(3);
    products.Update();
    EXPECT_EQ(products.EditMode(), EditState::None);
    products.SetBookmark(products.LastModified());
    EXPECT_EQ(products[u"Qty"].Money(), Money::FromWhole(3));
}

TEST_F(EditTest, OverwritesWhenPessimisticAndLeavesOtherFieldsAlone) {
    AddProduct(u"1"_s, u"Coffee"_s, Money::FromWhole(10));
    const auto other = OpenAgain();
    auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
    products.Edit();
    products[u"Qty"] = Money::FromWhole(7);
    other->Execute(u"UPDATE Products SET Qty = '6', ProdDescription = 'Tea'"_s);
    products.Update();
    EXPECT_EQ(products[u"Qty"].Money(), Money::FromWhole(7));
    EXPECT_EQ(products[u"ProdDescription"].Text(), u"Tea"_s);
}

TEST_F(EditTest, SeesARowInAnotherStoreHandleAtOnce) {
    const auto other = OpenAgain();
    auto mine = store->OpenRecordset(u"SELECT * FROM Sales"_s);
    mine.AddNew();
    mine[u"SalesID"] = 1;
    mine.Update();
    EXPECT_EQ(Column(*store, u"SELECT SalesID FROM Sales WHERE SalesID = '1'"_s), QStringList{u"1"_s});
    EXPECT_EQ(Column(*other, u"SELECT SalesID FROM Sales WHERE SalesID = '1'"_s), QStringList{u"1"_s});
}

TEST_F(EditTest, WaitsForAnotherWriterOnlyForAWhile) {
    AddTaxes({u"A"_s});
    const auto other = OpenAgain();
    auto taxes = other->OpenRecordset(u"SELECT * FROM Tax"_s);
    Database::Batch batch(*store);
    taxes.Edit();
    taxes[u"Name"] = u"x"_s;
    EXPECT_EQ(ErrorOf([&] { taxes.Update(); }), StoreLocked);
    EXPECT_EQ(taxes.EditMode(), EditState::Editing);
    batch.Commit();
    taxes.Update();
    EXPECT_EQ(Column(u"SELECT Name FROM Tax"_s), QStringList{u"x"_s});
}

}  // namespace store::test
