#include <atomic>
#include <thread>

#include "store/StoreTestBase.h"
#include "support/Proxy.h"
#include "support/Server.h"

namespace store::test {

using namespace std::chrono_literals;

// What becomes of a store whose server goes away, comes back, or hangs on a bad cable.
class ServerLossTest : public testing::Test {
protected:
    ServerLossTest() { values::SetUserLocale(QLocale(u"en_US"_s)); }

    std::unique_ptr<Database> Open(const QString& address) const {
        return Database::Open(Place::Server(address), MainSchema());
    }
    static int Count(Database& database, const QString& table) {
        return static_cast<int>(database.OpenSnapshot(u"SELECT Count(*) AS N FROM "_s + table)[0].Whole());
    }
    static void AddTax(Database& database, const QString& id) {
        auto taxes = database.OpenRecordset(u"SELECT * FROM Tax"_s);
        taxes.AddNew();
        taxes[u"TaxID"] = id;
        taxes[u"Name"] = u"tax "_s + id;
        taxes.Update();
    }
    // What the till stores of a sale, in its order.
    static void Post(Database& database, int invoice, int lines = 3) {
        Burst burst(database);
        auto invoices = database.OpenRecordset(u"SELECT * FROM Invoices"_s);
        invoices.AddNew();
        invoices[u"InvoiceID"] = invoice;
        invoices.Update();
        auto details = database.OpenRecordset(u"SELECT * FROM SalesDetails"_s);
        for (int line = 0; line < lines; ++line) {
            details.AddNew();
            details[u"InvoiceID"] = invoice;
            auto product = database.OpenRecordset(u"SELECT * FROM Products WHERE ProdCode = '100'"_s);
            product.LockEdits(false);
            product.Edit();
            product[u"Qty"] = product[u"Qty"].Money() - Money::FromWhole(1);
            product.Update();
            details.Update();
        }
        burst.End();
    }

    drivers::Server server_;
    const QString address_ = (server_.Start(), server_.NewShop());
    std::unique_ptr<Database> store = Database::Create(Place::Server(address_), MainSchema());
};

TEST_F(ServerLossTest, AServerThatCameBackIsFoundAgainWithoutAWord) {
    AddTax(*store, u"A"_s);
    auto taxes = store->OpenRecordset(u"SELECT * FROM Tax"_s);
    for (int round = 0; round < 2; ++round) {
        round == 0 ? server_.Stop() : server_.Kill();
        EXPECT_EQ(ErrorOf([&] { taxes.Move(0); }), DiskError);
        EXPECT_EQ(ErrorOf([&] { AddTax(*store, u"X"_s); }), DiskError);
        EXPECT_EQ(ErrorOf([&] { Open(address_); }), DiskError);
        server_.Start();
        taxes.Move(0);
        EXPECT_EQ(taxes[u"TaxID"].Text(), u"A");
        AddTax(*store, QString::number(round));
        taxes.Edit();
        taxes[u"Percent"] = round;
        taxes.Update();
        EXPECT_EQ(Count(*store, u"Tax"_s), 2 + round);
    }
}

TEST_F(ServerLossTest, ABatchIsLostWholeAndSaysSoUntilItEnds) {
    {
        Database::Batch batch(*store);
        AddTax(*store, u"A"_s);
        server_.Kill();
        server_.Start();
        EXPECT_EQ(ErrorOf([&] { AddTax(*store, u"B"_s); }), DiskError);
        EXPECT_EQ(ErrorOf([&] { Count(*store, u"Tax"_s); }), DiskError);
        EXPECT_EQ(ErrorOf([&] { batch.Commit(); }), DiskError);
    }
    EXPECT_EQ(Count(*store, u"Tax"_s), 0);
    AddTax(*store, u"A"_s);
    EXPECT_EQ(Count(*store, u"Tax"_s), 1);
}

TEST_F(ServerLossTest, ABurstDoesNotGoOnAsIfItsCommitsWereThere) {
    {
        Burst burst(*store);
        AddTax(*store, u"A"_s);
        server_.Kill();
        server_.Start();
        EXPECT_EQ(ErrorOf([&] { AddTax(*store, u"B"_s); }), DiskError);
        EXPECT_EQ(ErrorOf([&] { burst.End(); }), DiskError);
    }
    AddTax(*store, u"C"_s);
    EXPECT_EQ(store->OpenSnapshot(u"SELECT TaxID FROM Tax WHERE TaxID = 'C'"_s).RecordCount(), 1);
    // One that has written nothing yet lost nothing.
    Burst burst(*store);
    server_.Stop();
    server_.Start();
    AddTax(*store, u"D"_s);
    burst.End();
}

TEST_F(ServerLossTest, AShopThatWasMovedAwayIsToldToBeGone) {
    AddTax(*store, u"A"_s);
    const auto mover = Open(address_);
    mover->TakeAlone();
    EXPECT_EQ(ErrorOf([&] { Open(address_); }), HeldExclusively);
    EXPECT_TRUE(mover->PrepareToRetire().contains(u"_moved_"));
    mover->Retire();
    EXPECT_THROW(AddTax(*store, u"B"_s), FilesLost);
    EXPECT_EQ(ErrorOf([&] { Open(address_); }), FileNotFound);
}

TEST_F(ServerLossTest, PostingsThatWereAcknowledgedSurviveKills) {
    Database::Batch batch(*store);
    auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
    products.AddNew();
    products[u"ProdCode"] = u"100"_s;
    products[u"Qty"] = 0;
    products.Update();
    batch.Commit();
    std::atomic<bool> ends = false;
    std::thread killer([&] {
        for (int round = 0; !ends; ++round) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20 + round * 37 % 90));
            server_.Kill();
            server_.Start();
        }
    });
    QList<int> acknowledged;
    int lost = 0;
    for (int invoice = 1; acknowledged.size() < 200; ++invoice) {
        if (ErrorOf([&] { Post(*store, invoice); }) == 0)
            acknowledged += invoice;
        else
            ++lost;
    }
    ends = true;
    killer.join();
    EXPECT_GT(lost, 3);
    const auto whole = [&](int invoice) {
        return store->OpenSnapshot(u"SELECT InvoiceID FROM SalesDetails WHERE InvoiceID = '%1'"_s.arg(invoice));
    };
    for (const int invoice : acknowledged) {
        auto lines = whole(invoice);
        EXPECT_EQ(lines.RecordCount(), 3) << invoice;
    }
    // Each line that is there has taken its piece, and one more a lost sale may have.
    const int lines = Count(*store, u"SalesDetails"_s);
    const int taken = static_cast<int>(-store->OpenSnapshot(u"SELECT Qty FROM Products"_s)[0].Double());
    EXPECT_GE(taken, lines);
    EXPECT_LE(taken, lines + lost);
}

TEST_F(ServerLossTest, ACableThatIsCutAnywhereLeavesAPrefixOfTheSale) {
    AddTax(*store, u"A"_s);
    auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
    products.AddNew();
    products[u"ProdCode"] = u"100"_s;
    products[u"Qty"] = 0;
    products.Update();
    drivers::Proxy cable(server_);
    const auto till = Open(cable.Through(address_));
    Post(*till, 1);
    const qint64 before = cable.Bytes();
    Post(*till, 2);
    const qint64 whole = cable.Bytes() - before;
    ASSERT_GT(whole, 1000);
    int acknowledged = 2, invoice = 2;
    for (qint64 cut = 1; cut < whole; cut += whole / 120) {
        ++invoice;
        cable.CutAfter(cut);
        const bool isPosted = ErrorOf([&] { Post(*till, invoice); }) == 0;
        acknowledged += isPosted ? 1 : 0;
        auto heads = store->OpenSnapshot(u"SELECT InvoiceID FROM Invoices WHERE InvoiceID = '%1'"_s.arg(invoice));
        auto lines = store->OpenSnapshot(u"SELECT InvoiceID FROM SalesDetails WHERE InvoiceID = '%1'"_s.arg(invoice));
        EXPECT_LE(heads.RecordCount(), 1) << "cut after " << cut;
        EXPECT_LE(lines.RecordCount(), heads.RecordCount() * 3) << "cut after " << cut;
        EXPECT_TRUE(!isPosted || lines.RecordCount() == 3) << "cut after " << cut;
        cable.CutAfter(-1);
    }
    EXPECT_LT(acknowledged, invoice / 2);
}

TEST_F(ServerLossTest, ASilentServerIsLeftWhenTheUserWants) {
    drivers::Proxy cable(server_);
    const auto till = Open(cable.Through(address_));
    Count(*till, u"Tax"_s);
    cable.Freeze(true);
    int asked = 0;
    const Patience patience(*till, [&asked] { return [&asked] { return ++asked < 5; }; });
    EXPECT_EQ(ErrorOf([&] { Count(*till, u"Tax"_s); }), Cancelled);
    EXPECT_EQ(asked, 5);
    cable.Freeze(false);
    EXPECT_EQ(Count(*till, u"Tax"_s), 0);
    cable.Freeze(true);
    asked = 0;
    EXPECT_EQ(ErrorOf([&] { AddTax(*till, u"A"_s); }), Cancelled) << "the cursor's opening reads";
    cable.Freeze(false);
    EXPECT_EQ(till->OpenListing(u"SELECT * FROM Tax"_s).WaitFor(1), 0);
    cable.Freeze(true);
    asked = 0;
    EXPECT_EQ(ErrorOf([&] { till->OpenListing(u"SELECT * FROM Tax"_s).WaitFor(1); }), Cancelled);
    cable.Freeze(false);
    auto taxes = till->OpenRecordset(u"SELECT * FROM Tax"_s);
    taxes.AddNew();
    taxes[u"TaxID"] = u"A"_s;
    cable.Freeze(true);
    asked = 0;
    EXPECT_EQ(ErrorOf([&] { taxes.Update(); }), DiskError) << "it may be stored or not";
}

}  // namespace store::test
