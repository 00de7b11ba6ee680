#include <QProcess>

#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;

namespace {

class StartFaultsTest : public drivers::TillTest {};

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
    const auto holder = OpenMain();
    const store::Database::Batch held(*holder);
    Boxes boxes;
    boxes.Expect(u"Program VELTON already run."_s).WithIcon(QMessageBox::NoIcon);
    ShowLogin();
    EXPECT_TRUE(forms::ProgramIsEnding());
}

}  // namespace
