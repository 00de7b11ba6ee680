#include <QDir>
#include <QFile>
#include <thread>

#include "store/StoreTestBase.h"
#include "support/Files.h"

namespace store::test {

class DurabilityTest : public StoreTest {
protected:
    // That takes some room.
    static QString Invoice(int number) {
        return u"InvoiceID=%1 | CashierName=%2"_s.arg(number).arg(QString(300, u'x'));
    }
};

TEST_F(DurabilityTest, ABatchIsAllOrNone) {
    AddTaxes({u"A"_s});
    const auto other = OpenAgain();
    const auto seen = [&] { return RowsOf(*other, u"SELECT TaxID FROM Tax"_s).size(); };
    {
        Database::Batch batch(*store);
        AddTaxes({u"B"_s, u"C"_s});
        EXPECT_EQ(ErrorOf([&] { AddTaxes({u"b"_s}); }), DuplicateKey);
        EXPECT_EQ(ErrorOf([&] { Database::Batch second(*store); }), NotSupported);
        EXPECT_EQ(Taxes(), 3);
        EXPECT_EQ(seen(), 1);
    }
    EXPECT_EQ(seen(), 1);
    EXPECT_EQ(Taxes(), 1);
    Database::Batch batch(*store);
    AddTaxes({u"B"_s, u"C"_s});
    batch.Commit();
    EXPECT_EQ(seen(), 3);
    AddTaxes({u"D"_s});
    EXPECT_EQ(seen(), 4);
}

TEST_F(DurabilityTest, BurstsMayBeEmptyNestedAndMixedWithBatches) {
    const auto other = OpenAgain();
    Burst(*store).End();
    {
        Burst outer(*store);
        AddTaxes({u"A"_s});
        {
            Burst inner(*store);
            AddTaxes({u"B"_s});
            inner.End();
            inner.End();
        }
        AddTaxes({u"C"_s});
        EXPECT_EQ(RowsOf(*other, u"SELECT TaxID FROM Tax"_s).size(), 3) << "commits of a burst are seen at once";
        Database::Batch batch(*store);
        AddTaxes({u"D"_s});
        batch.Commit();
    }
    {
        Database::Batch batch(*store);
        Burst burst(*store);
        AddTaxes({u"E"_s});
        burst.End();
        batch.Commit();
    }
    {
        auto burst = std::make_unique<Burst>(*store);
        Database::Batch batch(*store);
        AddTaxes({u"F"_s});
        burst.reset();
        batch.Commit();
    }
    AddTaxes({u"G"_s});
    EXPECT_EQ(RowsOf(*other, u"SELECT TaxID FROM Tax"_s).size(), 7);
}

TEST_F(DurabilityTest, ABackupIsOfOneMomentWhileOthersWrite) {
    std::jthread writer([other = OpenAgain()](const std::stop_token& stop) {
        for (int number = 1; !stop.stop_requested(); ++number) {
            Database::Batch batch(*other);
            AddRows(*other, u"Invoices"_s, {Invoice(number)});
            AddRows(*other, u"SalesDetails"_s, {u"InvoiceID=%1"_s.arg(number)});
            batch.Commit();
        }
    });
    qsizetype before = 0;
    for (int i = 0; i < 5; ++i) {
        while (Rows(u"SELECT InvoiceID FROM Invoices"_s).size() < before + 20) std::this_thread::yield();
        const QString path = PathOf(u"copy%1.pos"_s.arg(i));
        store->BackupTo(path);
        EXPECT_FALSE(QFile::exists(path + u"-wal"_s));
        EXPECT_FALSE(QFile::exists(path + u".part"_s));
        const auto copy = Database::Open(path, MainSchema());
        const auto invoices = RowsOf(*copy, u"SELECT InvoiceID FROM Invoices"_s);
        EXPECT_EQ(invoices, RowsOf(*copy, u"SELECT InvoiceID FROM SalesDetails"_s));
        EXPECT_GE(invoices.size(), before + 20);
        before = invoices.size();
    }
}

TEST_F(DurabilityTest, ADiskThatTakesNoMoreLosesNothingThatWasStored) {
    auto invoices = store->OpenRecordset(u"SELECT * FROM Invoices"_s);
    int stored = 0;
    {
        const drivers::NoMoreRoom noMoreRoom(100'000);
        const auto addUntilRefused = [&] {
            for (; stored < 1000; ++stored) {
                invoices.AddNew();
                drivers::SetFields(invoices, Invoice(stored + 1));
                invoices.Update();
            }
        };
        EXPECT_EQ(ErrorOf(addUntilRefused), DiskError);
        EXPECT_EQ(invoices.EditMode(), EditState::Adding);
        EXPECT_EQ(ErrorOf([&] { store->BackupTo(PathOf(u"copy.pos"_s)); }), DiskError);
        EXPECT_FALSE(QFile::exists(PathOf(u"copy.pos.part"_s)));
        EXPECT_EQ(ErrorOf([&] { Database::Create(PathOf(u"new.pos"_s), MainSchema()); }), DiskError);
        EXPECT_FALSE(QFile::exists(PathOf(u"new.pos"_s)));
    }
    EXPECT_GT(stored, 0);
    invoices.Update();
    EXPECT_EQ(Rows(u"SELECT InvoiceID FROM Invoices"_s).size(), stored + 1);
    EXPECT_TRUE(store->CheckIntegrity().empty());
}

TEST_F(DurabilityTest, ABackupReplacesNoFileAndLeavesNoneWhenItFails) {
    store->BackupTo(PathOf(u"first.pos"_s));
    EXPECT_EQ(ErrorOf([&] { store->BackupTo(PathOf(u"first.pos"_s)); }), FileExists);
    EXPECT_NE(ErrorOf([&] { store->BackupTo(PathOf(u"nowhere/copy.pos"_s)); }), 0);
    Database::Batch batch(*store);
    EXPECT_EQ(ErrorOf([&] { store->BackupTo(PathOf(u"copy.pos"_s)); }), NotSupported);
    EXPECT_FALSE(QFile::exists(PathOf(u"copy.pos"_s)));
}

// What somebody does to the files in the folder while a till is open.
class LostFilesTest : public StoreTest {
protected:
    static inline const QStringList Endings{u""_s, u"-wal"_s, u"-shm"_s};

    void Remove(const QStringList& endings) const {
        for (const QString& ending : endings) ASSERT_TRUE(QFile::remove(StorePath() + ending));
    }
    void MoveAway() const {
        QDir().mkpath(PathOf(u"old"_s));
        for (const QString& ending : Endings)
            ASSERT_TRUE(QFile::rename(StorePath() + ending, PathOf(u"old/ORVA.pos"_s + ending)));
    }
    void Rename(const QString& from, const QString& to) const {
        ASSERT_TRUE(QDir().rename(folder_.path() + from, folder_.path() + to));
    }
    QStringList Saved() const { return QDir(folder_.path()).entryList({u"ORVA-saved-*.pos"_s}); }
};

TEST_F(LostFilesTest, ALostStoreTakesNoMoreAndIsSavedBesideItsPlace) {
    const auto stored = QStringList{u"A"_s, u"B"_s};
    const std::vector<std::function<void()>> deeds = {
        [&] { Remove({u"-wal"_s}); }, [&] { Remove({u"-shm"_s}); }, [&] { Remove(Endings); }, [&] { MoveAway(); },
        [&] {
            MoveAway();
            ASSERT_TRUE(QFile::copy(PathOf(u"backup.pos"_s), StorePath()));
        }};
    for (size_t i = 0; i < deeds.size(); ++i) {
        SCOPED_TRACE(i);
        QDir(folder_.path()).removeRecursively();
        QDir().mkpath(folder_.path());
        store = Database::Create(StorePath(), MainSchema());
        store->BackupTo(PathOf(u"backup.pos"_s));
        AddTaxes(stored);
        ASSERT_NO_FATAL_FAILURE(deeds[i]());

        const auto isRefused = [](const auto& write) {
            try {
                write();
            } catch (const StoreError& error) {
                EXPECT_TRUE(error.ForbidsRetry() && error.Number() == DiskError);
                EXPECT_TRUE(error.Description().contains(u"ORVA-saved-"_s)) << error.what();
                return true;
            }
            return false;
        };
        EXPECT_TRUE(isRefused([&] { AddTaxes({u"C"_s}); }));
        EXPECT_TRUE(isRefused([&] { AddTaxes({u"D"_s}); }));
        EXPECT_TRUE(isRefused([&] { store->Execute(u"DELETE * FROM Tax"_s); }));
        EXPECT_TRUE(isRefused([&] { Database::Batch batch(*store); }));
        EXPECT_EQ(Rows(u"SELECT TaxID FROM Tax"_s), stored) << "reading goes on";

        ASSERT_EQ(Saved().size(), 1);
        const auto saved = Database::Open(PathOf(Saved().first()), MainSchema());
        EXPECT_EQ(RowsOf(*saved, u"SELECT TaxID FROM Tax"_s), stored);
        const bool isThere = QFile::exists(StorePath());
        store.reset();
        EXPECT_TRUE(!isThere || OpenAgain()->CheckIntegrity().empty());
    }
}

TEST_F(LostFilesTest, ACommitOnItsWayIsNotAcknowledged) {
    AddTaxes({u"A"_s});
    {
        Database::Batch batch(*store);
        AddTaxes({u"B"_s});
        Remove({u"-wal"_s});
        EXPECT_EQ(ErrorOf([&] { batch.Commit(); }), DiskError);
    }
    EXPECT_EQ(Rows(u"SELECT TaxID FROM Tax"_s), QStringList{u"A"_s});
    store.reset();
    EXPECT_EQ(Saved().size(), 1);
}

TEST_F(LostFilesTest, ABurstThatLostItsFilesDoesNotEndWell) {
    Burst burst(*store);
    AddTaxes({u"A"_s});
    Remove(Endings);
    EXPECT_EQ(ErrorOf([&] { burst.End(); }), DiskError);
}

TEST_F(LostFilesTest, WithoutRoomForACopyThisIsSaid) {
    AddTaxes({u"A"_s});
    Rename({}, u"-renamed"_s);
    try {
        AddTaxes({u"B"_s});
        FAIL();
    } catch (const FilesLost& error) {
        EXPECT_TRUE(error.Description().contains(u"no copy"_s)) << error.what();
    }
    store.reset();
    Rename(u"-renamed"_s, {});
    store = OpenAgain();
    EXPECT_EQ(Rows(u"SELECT TaxID FROM Tax"_s), QStringList{u"A"_s});
}

TEST_F(LostFilesTest, AnEndWithoutAWriteSavesWhatWasWritten) {
    AddTaxes({u"A"_s});
    Remove(Endings);
    store.reset();
    EXPECT_EQ(Saved().size(), 1);
}

TEST_F(LostFilesTest, OthersThatComeAndGoAndCheckpointsAreNoLoss) {
    ASSERT_TRUE(QFile::link(StorePath(), PathOf(u"link.pos"_s)));
    store = Database::Open(PathOf(u"link.pos"_s), MainSchema());
    for (int i = 0; i < 20; ++i) {
        AddTaxes({QString::number(i)});
        OpenAgain()->Execute(u"UPDATE Tax SET Percent = 1"_s);
    }
    Database::Batch(*store).Commit();
    Database::Batch batch(*store);
    AddRows(*store, u"Invoices"_s, QStringList(20'000, u"CashierName="_s + QString(300, u'x')));
    batch.Commit();
    AddTaxes({u"last"_s});
    QFile::remove(PathOf(u"link.pos"_s));
    EXPECT_EQ(ErrorOf([&] { AddTaxes({u"gone"_s}); }), DiskError);
}

}  // namespace store::test
