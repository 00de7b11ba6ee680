#include <gmock/gmock.h>

#include <QFile>
#include <QProcess>
#include <QThread>

#include "tools/StoreTool.h"

using namespace Qt::StringLiterals;
using testing::StartsWith;

namespace {

using BackupTest = ShopTest;

}  // namespace

TEST_F(BackupTest, CopiesAStoreThatCanStandInForTheOldOne) {
    ASSERT_EQ(Insert(u"Unit"_s, {u"Abr=box"_s}), Done());
    EXPECT_EQ(Tool({u"backup"_s, folder_, Path(u"copy.pos"_s)}), Done());
    ASSERT_EQ(Sql(u"DELETE * FROM Unit"_s), Done());
    ASSERT_TRUE(QFile::remove(folder_ + u"/ORVA.pos"_s));
    ASSERT_TRUE(QFile::copy(Path(u"copy.pos"_s), folder_ + u"/ORVA.pos"_s));
    EXPECT_EQ(Sql(u"SELECT Abr FROM Unit"_s), Done("Abr\npcs\nkg\nl\nm\nbox\n"));
    EXPECT_EQ(Tool({u"check"_s, folder_}), Done("Both stores are sound.\n"));
}

TEST_F(BackupTest, RefusesToOverwriteAndToGoNowhere) {
    WriteFile(Path(u"copy.pos"_s), "precious");
    const Answer answer = Tool({u"backup"_s, folder_, Path(u"copy.pos"_s)});
    EXPECT_EQ(answer.exitCode, 1);
    EXPECT_THAT(answer.err.toStdString(), StartsWith("3204: "));
    EXPECT_EQ(ReadFile(Path(u"copy.pos"_s)), "precious");
    EXPECT_EQ(Tool({u"backup"_s, folder_, folder_ + u"/ORVA.pos"_s}).exitCode, 1);
    EXPECT_EQ(Tool({u"backup"_s, folder_, Path(u"none/copy.pos"_s)}).exitCode, 1);
    EXPECT_EQ(Tool({u"backup"_s, Path(u"none"_s), Path(u"new.pos"_s)}).exitCode, 1);
    EXPECT_FALSE(QFile::exists(Path(u"new.pos"_s)));
    EXPECT_EQ(Sql(u"SELECT Count(*) AS N FROM Unit"_s), Done("N\n4\n"));
}

TEST_F(BackupTest, IsOfOneMomentWhileARegisterWrites) {
    QProcess writer;
    writer.start(u"bash"_s,
                 {u"-c"_s,
                  u"i=0; while [ ! -e \"$3\" ]; do i=$((i+1)); \"$1\" insert \"$2\" Invoices InvoiceID=$i || exit 1; "
                  "\"$1\" insert \"$2\" SalesDetails InvoiceID=$i || exit 1; done"_s,
                  u"writer"_s, ToolPath(), folder_, Path(u"stop"_s)});
    ASSERT_TRUE(writer.waitForStarted());
    while (Sql(u"SELECT Count(*) AS N FROM Invoices"_s) == Done("N\n0\n")) QThread::msleep(20);
    for (int round = 1; round <= 5; ++round) {
        QThread::msleep(100);
        const QString copy = Path(QString::number(round));
        ASSERT_EQ(Tool({u"backup"_s, folder_, copy}), Done());
        const auto database = store::Database::Open(copy, store::MainSchema());
        const auto last = [&](const QString& table) {
            auto rows = database->OpenRecordset(u"SELECT Count(*) AS N, Max(Val(InvoiceID)) AS Last FROM "_s + table);
            const qint64 count = rows[0].Whole();
            EXPECT_EQ(count, rows[1].IsNull() ? 0 : rows[1].Whole());
            return count;
        };
        const qint64 invoices = last(u"Invoices"_s);
        const qint64 lines = last(u"SalesDetails"_s);
        EXPECT_GT(invoices, 0);
        EXPECT_TRUE(lines == invoices || lines == invoices - 1);
    }
    EXPECT_EQ(writer.state(), QProcess::Running) << writer.readAllStandardError().toStdString();
    WriteFile(Path(u"stop"_s), "");
    EXPECT_TRUE(writer.waitForFinished());
}
