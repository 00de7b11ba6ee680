#include <QFile>
#include <QProcess>

#include <SQLiteCpp/SQLiteCpp.h>

#include "core/InstanceLock.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;

namespace {

class StartFaultsTest : public drivers::TillTest {
protected:
    void ExpectReport(const QString& number) {
        Boxes boxes;
        boxes.ExpectBeginning(number).WithIcon(QMessageBox::Information).Titled(u"VELTON - LOGIN"_s);
        ShowLogin();
        EXPECT_TRUE(Login().isVisible()) << "the form stays, partly filled";
    }
};

TEST_F(StartFaultsTest, RefusesASecondInstanceInTheFolder) {
    // The lock belongs to a process: another one holds it.
    QProcess holder;
    holder.start(u"flock"_s, {u"-o"_s, folder.path(), u"-c"_s, u"echo held; sleep 30"_s});
    ASSERT_TRUE(holder.waitForReadyRead());
    {
        Boxes boxes;
        boxes.Expect(u"VELTON already works."_s).WithIcon(QMessageBox::NoIcon);
        ShowLogin();
    }
    EXPECT_TRUE(forms::ProgramIsEnding());
    EXPECT_FALSE(forms::FindForm(u"frmLogin"));
    holder.kill();
    holder.waitForFinished();
    Crash();
    ShowLogin();
    EXPECT_TRUE(Login().isVisible()) << "the lock ends with its process";
    EXPECT_EQ(QProcess::execute(u"flock"_s, {u"-n"_s, u"-s"_s, folder.path(), u"true"_s}), 1) << "nobody shares it";
}

TEST_F(StartFaultsTest, EndsWhenTheStoreIsHeldExclusively) {
    SQLite::Database holder(Path(u"ORVA.pos"_s).toStdString(), SQLite::OPEN_READWRITE);
    holder.exec("PRAGMA locking_mode = EXCLUSIVE");
    holder.exec("BEGIN EXCLUSIVE");
    Boxes boxes;
    boxes.Expect(u"Program VELTON already run."_s).WithIcon(QMessageBox::NoIcon);
    ShowLogin();
    EXPECT_TRUE(forms::ProgramIsEnding());
}

TEST_F(StartFaultsTest, ReportsAMissingStore) {
    QFile::remove(Path(u"ORVA.pos"_s));
    ExpectReport(u"3024"_s);
    EXPECT_FALSE(QFile::exists(Path(u"ORVA.pos"_s))) << "no store is made anew";
    Boxes boxes;
    boxes.ExpectBeginning({});
    drivers::Type(Login(), u"txtUserName", u"kasir");
    drivers::Type(Login(), u"txtPassword", u"1234{Enter}");
}

TEST_F(StartFaultsTest, ReportsADamagedStore) {
    QFile file(Path(u"opt.pos"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("this is no store at all, and long enough to be looked at by the engine that opens it");
    file.close();
    ExpectReport(u"3343"_s);
}

TEST_F(StartFaultsTest, ReportsAStoreOfANewerVersion) {
    SQLite::Database(Path(u"ORVA.pos"_s).toStdString(), SQLite::OPEN_READWRITE).exec("PRAGMA user_version = 9999");
    ExpectReport(u"3343"_s);
}

TEST_F(StartFaultsTest, ReportsOptionsWithoutARow) {
    store::Database::Open(Path(u"opt.pos"_s), store::OptionsSchema())->Execute(u"DELETE * FROM Options"_s);
    ExpectReport(u"3021"_s);
}

}  // namespace
