#include <gmock/gmock.h>

#include <QDir>
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
    ASSERT_TRUE(QFile::link(Path(u"new.pos"_s), Path(u"link.pos"_s)));
    const QStringList before = QDir(shop_.path()).entryList(QDir::NoFilter);
    for (const auto& [target, number] : QList<std::pair<QString, const char*>>{{folder_ + u"/ORVA.pos"_s, "3204: "},
                                                                               {folder_ + u"/ORVA.pos-wal"_s, "3251: "},
                                                                               {Path(u"link.pos"_s), "3204: "},
                                                                               {folder_, "3204: "},
                                                                               {Path(u"new.pos/"_s), "3251: "},
                                                                               {Path(u"none/copy.pos"_s), "3024: "},
                                                                               {u"/dev/null"_s, "3204: "},
                                                                               {u"-"_s, "5: "}})
        EXPECT_THAT(Tool({u"backup"_s, folder_, target}).err.toStdString(), StartsWith(number)) << target.toStdString();
    EXPECT_EQ(Tool({u"backup"_s, Path(u"none"_s), Path(u"new.pos"_s)}).exitCode, 1);
    EXPECT_EQ(QDir(shop_.path()).entryList(QDir::NoFilter), before);
    EXPECT_EQ(Sql(u"SELECT Count(*) AS N FROM Unit"_s), Done("N\n4\n"));
}

TEST_F(BackupTest, ClearsAwayWhatAKilledOneLeftButNotWhatIsBeingMade) {
    for (const QString& name : {u"killed.pos.velton.part"_s, u"killed.pos.velton.part-journal"_s,
                                u"killed.pos.velton.part-lock"_s, u"busy.pos.velton.part"_s, u"film.part"_s})
        WriteFile(Path(name), "x");
    const Answer answer = Shell(u"umask 0; flock -n \"$3\" \"$TOOL\" backup \"$1\" \"$2\""_s,
                                {folder_, Path(u"copy.pos"_s), Path(u"busy.pos.velton.part-lock"_s)});
    EXPECT_EQ(answer, Done());
    EXPECT_EQ(QDir(shop_.path()).entryList(QDir::Files),
              (QStringList{u"busy.pos.velton.part"_s, u"busy.pos.velton.part-lock"_s, u"copy.pos"_s, u"film.part"_s}));
    EXPECT_FALSE(QFile::permissions(Path(u"copy.pos"_s)) & ~(QFile::Permissions(0x6600))) << "for its user alone";
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
