#include <QSet>
#include <atomic>
#include <set>
#include <thread>

#include "store/StoreTestBase.h"
#include "support/Proxy.h"
#include "support/Server.h"
#include "values/Clock.h"

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
        return RowsOf(database, u"SELECT Count(*) AS N FROM "_s + table).first().toInt();
    }
    static void AddTax(Database& database, const QString& id) {
        AddRows(database, u"Tax"_s, {u"TaxID=%1 | Name=tax %1"_s.arg(id)});
    }
    // Whether a lost server may have stored a row.
    static bool MayHaveStored(Recordset& row) {
        try {
            row.Update();
        } catch (const ServerLost& error) {
            return error.MayHaveStored();
        }
        ADD_FAILURE() << "nothing was lost";
        return false;
    }
    // What the till stores of a sale of three lines, in its order.
    static void Post(Database& database, int invoice) {
        Burst burst(database);
        AddRows(database, u"Invoices"_s, {u"InvoiceID=%1"_s.arg(invoice)});
        auto details = database.OpenRecordset(u"SELECT * FROM SalesDetails"_s);
        for (int line = 0; line < 3; ++line) {
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
    qsizetype LinesOf(int invoice) {
        return RowsOf(*store, u"SELECT InvoiceID FROM SalesDetails WHERE InvoiceID = '%1'"_s.arg(invoice)).size();
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
    // A commit that cannot have reached the server leaves no doubt.
    Database::Batch batch(*store);
    AddTax(*store, u"B"_s);
    server_.Kill();
    server_.Start();
    try {
        batch.Commit();
        ADD_FAILURE() << "a lost batch is stored";
    } catch (const ServerLost& error) {
        EXPECT_TRUE(error.Description().contains(u"none of them is"));
    }
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

TEST_F(ServerLossTest, ShopsThatGoInOneSecondAreKeptBesideEachOther) {
    values::SetClock([] { return QDateTime(QDate(2026, 11, 24), QTime(10, 42, 7)); });
    QSet<QString> kept;
    for (int round = 0; round < 3; ++round) {
        if (round > 0) store = Database::Create(Place::Server(address_), MainSchema());
        AddTax(*store, u"A"_s);
        store->TakeAlone();
        kept << store->PrepareToRetire();
        store->Retire();
    }
    values::SetClock({});
    EXPECT_EQ(kept.size(), 3);
}

TEST_F(ServerLossTest, PostingsThatWereAcknowledgedSurviveKills) {
    AddRows(*store, u"Products"_s, {u"ProdCode=100 | Qty=0"_s});
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
    for (const int number : acknowledged) EXPECT_EQ(LinesOf(number), 3) << number;
    // Each line that is there has taken its piece, and one more a lost sale may have.
    const int lines = Count(*store, u"SalesDetails"_s);
    const int taken = static_cast<int>(-store->OpenSnapshot(u"SELECT Qty FROM Products"_s)[0].Double());
    EXPECT_GE(taken, lines);
    EXPECT_LE(taken, lines + lost);
}

TEST_F(ServerLossTest, ACableThatIsCutAnywhereLeavesAPrefixOfTheSale) {
    AddRows(*store, u"Products"_s, {u"ProdCode=100 | Qty=0"_s});
    drivers::Proxy cable(server_);
    const auto till = Open(cable.Through(address_));
    Post(*till, 1);
    cable.CutAfter(0);
    const qint64 before = cable.Bytes();
    Post(*till, 2);
    const qint64 whole = cable.Bytes() - before;
    ASSERT_GT(whole, 1000);
    int acknowledged = 2, invoice = 2;
    std::set<qsizetype> prefixes;
    for (qint64 cut = 1; cut < whole; cut += whole / 120) {
        ++invoice;
        cable.CutAfter(cut);
        const bool isPosted = ErrorOf([&] { Post(*till, invoice); }) == 0;
        acknowledged += isPosted ? 1 : 0;
        const auto heads =
            RowsOf(*store, u"SELECT InvoiceID FROM Invoices WHERE InvoiceID = '%1'"_s.arg(invoice)).size();
        const auto lines = *prefixes.insert(LinesOf(invoice)).first;
        EXPECT_LE(heads, 1) << "cut after " << cut;
        EXPECT_LE(lines, heads * 3) << "cut after " << cut;
        EXPECT_TRUE(!isPosted || lines == 3) << "cut after " << cut;
        cable.CutAfter(-1);
    }
    EXPECT_LT(acknowledged, invoice / 2);
    EXPECT_TRUE(prefixes.contains(1) || prefixes.contains(2)) << "never cut between two lines";
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
    EXPECT_TRUE(MayHaveStored(taxes));
    server_.Stop();
    EXPECT_FALSE(MayHaveStored(taxes)) << "it was never sent";
}

}  // namespace store::test
