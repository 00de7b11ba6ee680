#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "support/Engines.h"
#include "support/Files.h"

using namespace Qt::StringLiterals;
using drivers::ReadFile;

namespace {

TEST(DemoDay, LeavesTheReceiptsReportAndPicturesItAlwaysLeaves) {
    const QTemporaryDir folder;
    const QString shop = folder.filePath(u"shop"_s);
    QProcess demo;
    QStringList arguments{shop};
    if (drivers::OnServer()) arguments << u"--server"_s << drivers::ServerForTest();
    demo.start(QStringLiteral(PROGRAMS "/velton-demo"), arguments);
    ASSERT_TRUE(demo.waitForFinished(60000));
    EXPECT_EQ(demo.exitCode(), 0) << demo.readAllStandardError().toStdString();
    for (const QString& name : {u"/invoices.txt"_s, u"/lpt1.prn"_s, u"/fiscal.txt"_s, u"/Report.txt"_s})
        EXPECT_EQ(ReadFile(shop + name), ReadFile(QStringLiteral(TEST_DATA "/demo") + name)) << name.toStdString();
    EXPECT_EQ(QDir(shop + u"/screens"_s).entryList({u"*.png"_s}).size(), 13);
}

TEST(DemoDay, LeavesForeignFoldersAndShopsAlone) {
    for (const QString& name : {u"mine.txt"_s, u"opt.pos"_s}) {
        const QTemporaryDir folder;
        drivers::WriteFile(folder.filePath(name), {});
        QProcess demo;
        demo.start(QStringLiteral(PROGRAMS "/velton-demo"), {folder.path()});
        ASSERT_TRUE(demo.waitForFinished(60000));
        EXPECT_EQ(demo.exitCode(), 1);
        EXPECT_TRUE(QFile::exists(folder.filePath(name)));
    }
}

}  // namespace
