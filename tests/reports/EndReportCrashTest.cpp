#include <QProcess>
#include <QRandomGenerator>
#include <QThread>
#include <csignal>

#include "support/Till.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int OpenPeriods = 300;

class EndReportCrashTest : public drivers::TillTest {
protected:
    EndReportCrashTest() {
        const auto main = store::Database::Open(Path(u"ORVA.pos"_s), store::MainSchema());
        store::Database::Batch batch(*main);
        auto sales = main->OpenRecordset(u"SELECT * FROM Sales"_s);
        for (int number = 1; number <= OpenPeriods; ++number) {
            sales.AddNew();
            sales[u"SalesID"] = QString::number(number);
            sales.Update();
        }
        batch.Commit();
    }

    static std::unique_ptr<QProcess> StartClosing(const QString& folder) {
        auto process = std::make_unique<QProcess>();
        process->start(QStringLiteral(PROGRAMS "/period-closer"), {folder});
        EXPECT_TRUE(process->waitForReadyRead(20000)) << process->readAllStandardError().toStdString();
        return process;
    }
};

TEST_F(EndReportCrashTest, AKillLeavesEachPeriodEitherOpenOrClosedAsAWhole) {
    constexpr int rounds = 6;
    for (int round = 0; round < rounds; ++round) {
        const auto closer = StartClosing(folder.path());
        QThread::usleep(QRandomGenerator::global()->bounded(100u, 20000u));
        kill(static_cast<pid_t>(closer->processId()), SIGKILL);
        ASSERT_TRUE(closer->waitForFinished());
        EXPECT_EQ(Rows(u"SELECT SalesID FROM Sales"_s).size(), OpenPeriods);
        for (const QString& row : Rows(u"SELECT Closed, Payed, DateStoped, TimeStoped, Grupni, SalesID FROM Sales"_s)) {
            const bool open = row.startsWith(u"False|False||||"_s);
            const bool closed = row.startsWith(u"True|True|11/24/2026|10:00:05 PM|"_s) && !row.contains(u"||"_s);
            EXPECT_NE(open, closed) << row.toStdString();
        }
    }
    const auto closed = static_cast<int>(Rows(u"SELECT SalesID FROM Sales WHERE Closed = True"_s).size());
    std::printf("%d of %d periods closed after %d kills\n", closed, OpenPeriods, rounds);
    const auto last = StartClosing(folder.path());
    ASSERT_TRUE(last->waitForFinished());
    EXPECT_EQ(last->exitCode(), 0);
    EXPECT_TRUE(Rows(u"SELECT SalesID FROM Sales WHERE Closed = False"_s).isEmpty());
}

}  // namespace
