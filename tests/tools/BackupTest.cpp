#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include "delivery/Delivery.h"
#include "store/StorePath.h"
#include "support/CaseText.h"
#include "support/Engines.h"
#include "support/TestFolder.h"
#include "upkeep/Backup.h"
#include "upkeep/BackupPruning.h"
#include "upkeep/ManagerStore.h"
#include "upkeep/Restore.h"
#include "upkeep/RestoreSteps.h"
#include "values/IniEdit.h"

using namespace Qt::StringLiterals;
using namespace upkeep;

namespace {

constexpr int Moments = 24;

class BackupTest : public testing::Test {
protected:
    BackupTest() {
        QDir(folder_.path()).mkdir(u"stick"_s);
        delivery::MakeProgramFolder(shop_, {.withDemo = true, .server = drivers::ServerForTest()});
    }

    std::unique_ptr<store::Database> Main() const { return store::OpenMain(shop_); }
    std::unique_ptr<store::Database> Options() const { return store::OpenOptions(shop_); }
    // A mark in each part of the shop.
    void Mark(const QString& mark) const {
        Main()->Execute(u"UPDATE Users SET UserFullName = '%1'"_s.arg(mark));
        Options()->Execute(u"UPDATE Options SET Footer = '%1'"_s.arg(mark));
        QFile picture(shop_ + u"/img/mark"_s);
        EXPECT_TRUE(picture.open(QIODevice::WriteOnly) && picture.write(mark.toUtf8()) == mark.size());
    }
    QStringList Marks() const {
        QFile picture(shop_ + u"/img/mark"_s);
        EXPECT_TRUE(picture.open(QIODevice::ReadOnly));
        return {Main()->OpenSnapshot(u"SELECT UserFullName FROM Users"_s)[0].TextOrEmpty(),
                Options()->OpenSnapshot(u"SELECT Footer FROM Options"_s)[0].TextOrEmpty(),
                QString::fromUtf8(picture.readAll())};
    }
    BackupFacts Save() const { return MakeBackup(shop_, {.folder = stick_}); }

    // Milliseconds that a call of the tool takes; with `killAfter` it is killed by then.
    static int Call(const QStringList& arguments, int killAfter = -1) {
        QProcess tool;
        QElapsedTimer time;
        time.start();
        tool.start(QStringLiteral(PROGRAMS "/velton-store"), arguments);
        if (!tool.waitForFinished(killAfter)) {
            tool.kill();
            EXPECT_TRUE(tool.waitForFinished());
        }
        return static_cast<int>(time.elapsed());
    }
    QStringList Left(const QString& folder) const {
        return QDir(folder).entryList({u"*.part"_s, u"*.todo"_s, u"*.restored*"_s},
                                      QDir::AllEntries | QDir::Hidden | QDir::System);
    }

    const QTemporaryDir folder_{FolderTemplate()};
    const QString shop_ = folder_.filePath(u"shop"_s);
    const QString stick_ = folder_.filePath(u"stick"_s);
};

}  // namespace

TEST_F(BackupTest, OneThatIsKilledAtAnyMomentDoesNotCountAndTheNextIsWhole) {
    const QStringList call{u"backup"_s, shop_, u"--to"_s, stick_};
    const int whole = Call(call);
    for (int moment = 0; moment < Moments; ++moment) {
        Mark(QString::number(moment));
        Call(call, 1 + whole * moment / Moments);
        const auto backups = ListBackups(stick_, shop_);
        ASSERT_FALSE(backups.isEmpty()) << "the one before is kept";
        for (const BackupFacts& backup : backups) {
            EXPECT_EQ(backup.fault, QString());
            EXPECT_FALSE(PreviewRestore(shop_, backup).backup.path.isEmpty());
        }
    }
    const BackupFacts last = Save();
    EXPECT_EQ(last.fault, QString());
    EXPECT_EQ(Left(QFileInfo(last.path).path()) + Left(shop_), QStringList());
}

TEST_F(BackupTest, ARestoreThatIsKilledLeavesTheOldShopOrTheNewOne) {
    Mark(u"old"_s);
    const BackupFacts backup = Save();
    Mark(u"new"_s);
    const int whole = Call({u"restore"_s, shop_, backup.path});
    EXPECT_EQ(Marks(), QStringList(3, u"old"_s));
    for (int moment = 0; moment < Moments; ++moment) {
        Mark(u"new"_s);
        Call({u"restore"_s, shop_, backup.path}, 1 + whole * moment / Moments);
        EndBrokenRestore(shop_);
        const QStringList marks = Marks();
        EXPECT_EQ(marks, QStringList(3, marks[0])) << "moment " << moment;
    }
    QThread::sleep(1);  // what was kept has names of its own
    RestoreBackup(shop_, backup);
    EXPECT_EQ(Marks(), QStringList(3, u"old"_s));
    EXPECT_EQ(Left(shop_), QStringList());
}

// The store is in its place and the rest is not yet, or not all of it.
TEST_F(BackupTest, ARestoreGoesOnWhereTheStoreHasComeIntoItsPlaceAndElseIsTakenBack) {
    for (const bool hasCome : {true, false}) {
        Mark(u"before"_s);
        RestoreSteps steps(shop_);
        QDir(shop_).mkdir(u".restore.part"_s);
        ASSERT_TRUE(QFile::copy(shop_ + u"/opt.pos"_s, steps.Coming().filePath(u"opt.pos"_s)));
        ASSERT_TRUE(QFile::copy(shop_ + u"/ports.ini"_s, steps.Coming().filePath(u"ports.ini"_s)));
        Options()->Execute(u"UPDATE Options SET Footer = 'later'"_s);
        const QString coming = shop_ + u"/coming"_s;
        EXPECT_TRUE(hasCome || QFile::copy(shop_ + u"/ports.ini"_s, coming));
        steps.Begin(coming, {}, u"kept"_s);
        // Killed when the old settings had gone and the new ones had not come.
        EXPECT_TRUE(!hasCome || QFile::rename(shop_ + u"/opt.pos"_s, shop_ + u"/kept/opt.pos"_s));
        EXPECT_THROW(RequireNoBrokenRestore(shop_), values::Error);
        EndBrokenRestore(shop_);
        EXPECT_EQ(Options()->OpenSnapshot(u"SELECT Footer FROM Options"_s)[0].TextOrEmpty(),
                  hasCome ? u"before"_s : u"later"_s);
        EXPECT_TRUE(QFile::exists(shop_ + u"/ports.ini"_s));
        EXPECT_EQ(QFile::exists(shop_ + u"/kept/ports.ini"_s), hasCome);
        EXPECT_EQ(Left(shop_), QStringList());
        QDir(shop_ + u"/kept"_s).removeRecursively();
    }
}

// The owner's program may have its store open; what it kept is there in the log alone.
TEST_F(BackupTest, ACountOfTheDrawerIsBackedUpAndBroughtBackWhereItIsMissing) {
    const auto manager = OpenManagerStore(shop_);
    DrawerCount count;
    count.day = QDate(2026, 11, 26);
    count.time = QTime(20, 0);
    count.remark = u"in the evening"_s;
    KeepCount(*manager, count);
    const BackupFacts backup = Save();
    const QTemporaryDir aside(FolderTemplate());
    ASSERT_TRUE(
        QFile::copy(QDir(backup.path).filePath(backup::Register + u'/' + ManagerFile), aside.filePath(ManagerFile)));
    EXPECT_EQ(KeptCounts(*OpenManagerStore(aside.path())).first().remark, u"in the evening"_s);
    KeepCount(*manager, count);
    RestoreBackup(shop_, backup);
    EXPECT_EQ(KeptCounts(*OpenManagerStore(shop_)).size(), 2);
    for (const QString& ending : StoreEndings()) QFile::remove(shop_ + u'/' + ManagerFile + ending);
    RestoreBackup(shop_, backup);
    EXPECT_EQ(KeptCounts(*OpenManagerStore(shop_)).size(), 1);
}

// A store that can't be opened any more is put aside as it is.
TEST_F(BackupTest, ADamagedShopIsRestoredToo) {
    Mark(u"old"_s);
    const BackupFacts backup = Save();
    QFile store(shop_ + u"/ORVA.pos"_s);
    ASSERT_TRUE(store.open(QIODevice::WriteOnly) && store.write("no store") > 0);
    store.close();
    EXPECT_FALSE(PreviewRestore(shop_, backup).liveFault.isEmpty());
    const Restored restored = RestoreBackup(shop_, backup);
    EXPECT_EQ(QFileInfo(restored.oldStore).size(), 8);
    EXPECT_EQ(Marks(), QStringList(3, u"old"_s));
}

// The stick goes while the settings are on their way.
TEST_F(BackupTest, AStickThatIsDrawnInTheMiddleIsTold) {
    Save();
    const auto draw = [this](const QString& doing) {
        if (doing.contains(u"opt.pos")) QDir(stick_).rename(stick_, stick_ + u"-drawn"_s), QDir().mkdir(stick_);
        return true;
    };
    try {
        MakeBackup(shop_, {.folder = stick_}, draw);
        ADD_FAILURE() << "nothing was told";
    } catch (const values::Error& error) {
        EXPECT_TRUE(error.Description().contains(u"went away")) << error.Description().toStdString();
    }
    EXPECT_TRUE(QDir(stick_).isEmpty());
}

// What is sold while a copy is made is of today, or the copy is made again.
TEST_F(BackupTest, SalesOfTodayMayComeInMeanwhileAndALeftOneIsNone) {
    const auto sell = [this](const QString& doing) {
        if (!doing.startsWith(u"Comparing")) return true;
        const auto main = Main();
        auto invoices = main->OpenRecordset(u"SELECT * FROM Invoices"_s);
        invoices.AddNew();
        invoices[u"InvoiceID"] = u"1"_s;
        invoices[u"DateSold"] = QDate::currentDate();
        invoices.Update();
        return true;
    };
    EXPECT_EQ(MakeBackup(shop_, {.folder = stick_}, sell).invoices, 0);
    const auto leave = [](const QString& doing) { return !doing.startsWith(u"Reading"); };
    EXPECT_THROW(MakeBackup(shop_, {.folder = stick_}, leave), store::StoreError);
    EXPECT_EQ(ListBackups(stick_, shop_).size(), 1);
}

class PruningTest : public testing::TestWithParam<drivers::CaseText> {};

TEST_P(PruningTest, KeepsWhatItsRowsSay) {
    const auto kept = [](const QStringList& cells) {
        QList<QDateTime> times;
        for (const QString& day : cells[0].split(u' '))
            times.prepend(QDateTime(QDate::fromString(day, Qt::ISODate), QTime(20, 0)));
        const QStringList counts = cells[1].split(u' ');
        const BackupPlan plan{
            .folder = {}, .days = counts[0].toInt(), .weeks = counts[1].toInt(), .months = counts[2].toInt()};
        const QList<QDateTime> outdated = OutdatedOf(times, plan);
        QStringList days;
        for (const QDateTime& time : times)
            if (!outdated.contains(time)) days.prepend(time.date().toString(Qt::ISODate));
        return days.join(u' ');
    };
    for (const drivers::Step& step : GetParam().steps.inner) CheckRows(step, {{u"Kept"_s, kept}});
}

INSTANTIATE_TEST_SUITE_P(Backup, PruningTest, testing::ValuesIn(drivers::ReadCases(u"tools"_s, {u"pruning"_s})),
                         [](const auto& info) { return info.param.name.toStdString(); });
