#include <QProcess>
#include <QRandomGenerator>
#include <QThread>
#include <csignal>

#include "delivery/Delivery.h"
#include "support/Engines.h"
#include "support/Files.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ManyInvoices = 100000;

// Real processes that write, killed at random moments or working side by side on one store.
class CrashTest : public drivers::TillTest {
protected:
    static std::unique_ptr<QProcess> Start(const QStringList& arguments) {
        auto process = std::make_unique<QProcess>();
        process->start(QStringLiteral(PROGRAMS "/till-worker"), arguments);
        return process;
    }
    static QStringList Selling(const QString& folder, int invoices) {
        return {folder, u"sell"_s, u"100"_s, QString::number(invoices)};
    }
    static int Rounds(int usual) { return qEnvironmentVariableIntValue("VELTON_KILL_ROUNDS") ?: usual; }

    // Kills a worker at some moment after its first word; the lines that it had said by then.
    static QStringList Kill(const QStringList& arguments, quint32 mostMicroseconds) {
        const auto worker = Start(arguments);
        EXPECT_TRUE(worker->waitForReadyRead()) << worker->readAllStandardError().toStdString();
        QThread::usleep(QRandomGenerator::global()->bounded(100u, mostMicroseconds));
        kill(static_cast<pid_t>(worker->processId()), SIGKILL);
        EXPECT_TRUE(worker->waitForFinished());
        const QString said = QString::fromLatin1(worker->readAllStandardOutput());
        return said.first(said.lastIndexOf(u'\n') + 1).split(u'\n', Qt::SkipEmptyParts);
    }

    void ExpectSoundStore() const {
        QProcess check;
        check.start(QStringLiteral(PROGRAMS "/velton-store"), {u"check"_s, folder.path()});
        ASSERT_TRUE(check.waitForFinished());
        EXPECT_EQ(check.exitCode(), 0) << check.readAllStandardError().toStdString()
                                       << check.readAllStandardOutput().toStdString();
    }
};

TEST_F(CrashTest, KillingWhilePostingLosesNothingAcknowledged) {
    const int rounds = Rounds(12);
    QStringList acknowledged;
    for (int round = 0; round < rounds; ++round) {
        acknowledged += Kill(Selling(folder.path(), ManyInvoices), 120'000);
        ExpectSoundStore();
    }
    const QStringList stored = Rows(u"SELECT InvoiceID FROM Invoices"_s);
    const QSet<QString> heads(stored.begin(), stored.end());
    const QStringList details = Rows(u"SELECT InvoiceID, Count(*) AS Lines FROM SalesDetails GROUP BY InvoiceID"_s);
    const QSet<QString> complete(details.begin(), details.end());
    EXPECT_GE(acknowledged.size(), rounds);
    for (const QString& invoice : acknowledged) {
        EXPECT_TRUE(heads.contains(invoice)) << invoice.toStdString();
        EXPECT_TRUE(complete.contains(invoice + u"|3"_s)) << invoice.toStdString();
    }
    std::printf("%d rounds, %lld invoices acknowledged, %lld stored\n", rounds,
                static_cast<long long>(acknowledged.size()), static_cast<long long>(stored.size()));
}

// Many periods, which an End Report closes one by one.
class EndReportTest : public CrashTest {
protected:
    static constexpr int Periods = 300;

    EndReportTest() {
        const auto main = OpenMain();
        store::Database::Batch batch(*main);
        QStringList rows;
        for (int number = 1; number <= Periods; ++number) rows += u"SalesID=%1"_s.arg(number);
        drivers::AddRows(*main, u"Sales"_s, rows);
        batch.Commit();
    }
    void Reopen() const {
        Run(u"UPDATE Sales SET Closed = False, Payed = False, DateStoped = Null, TimeStoped = Null, Grupni = Null"_s);
    }
    qsizetype Open() const { return Rows(u"SELECT SalesID FROM Sales WHERE Closed = False"_s).size(); }
    void ExpectEachOpenOrClosedAsAWhole() const {
        EXPECT_EQ(Rows(u"SELECT SalesID FROM Sales"_s).size(), Periods);
        for (const QString& row : Rows(u"SELECT Closed, Payed, DateStoped, TimeStoped, Grupni, SalesID FROM Sales"_s)) {
            const bool isOpen = row.startsWith(u"False|False||||"_s);
            const bool isClosed = row.startsWith(u"True|True|11/24/2026|10:00:05 PM|"_s) && !row.contains(u"||"_s);
            EXPECT_NE(isOpen, isClosed) << row.toStdString();
        }
    }
    const QStringList closing_{folder.path(), u"close"_s};
};

TEST_F(EndReportTest, KillingItLeavesEachPeriodEitherOpenOrClosedAsAWhole) {
    for (int round = 0; round < Rounds(6); ++round) {
        Reopen();
        Kill(closing_, 20'000);
        ExpectEachOpenOrClosedAsAWhole();
        std::printf("%lld of %d periods open after a kill\n", static_cast<long long>(Open()), Periods);
    }
    const auto last = Start(closing_);
    ASSERT_TRUE(last->waitForFinished());
    EXPECT_EQ(last->exitCode(), 0);
    EXPECT_EQ(Open(), 0);
}

TEST_F(EndReportTest, TwoAtOnceLeaveEachPeriodClosedByOneOfThem) {
    for (int round = 0; round < Rounds(6); ++round) {
        Reopen();
        const std::unique_ptr<QProcess> both[] = {Start(closing_), Start(closing_)};
        for (const auto& each : both) {
            ASSERT_TRUE(each->waitForFinished());
            EXPECT_EQ(each->exitCode(), 0) << each->readAllStandardError().toStdString();
        }
        EXPECT_EQ(Open(), 0);
        ExpectEachOpenOrClosedAsAWhole();
    }
}

TEST_F(CrashTest, EightRegistersSellOneProductAndTheStockIsExact) {
    constexpr int registers = 8;
    constexpr int invoices = 25;
    std::vector<std::unique_ptr<QProcess>> workers;
    std::vector<std::unique_ptr<QTemporaryDir>> folders;
    for (int number = 0; number < registers; ++number) {
        folders.push_back(std::make_unique<QTemporaryDir>());
        const QString own = folders.back()->path();
        delivery::MakeProgramFolder(own);
        for (const QString& store : {u"/ORVA.pos"_s, u"/opt.pos"_s}) ASSERT_TRUE(QFile::remove(own + store));
        ASSERT_TRUE(QFile::copy(Path(u"opt.pos"_s), own + u"/opt.pos"_s));
        drivers::WriteFile(own + u"/store.ini"_s, drivers::OnServer()
                                                      ? File(u"store.ini"_s)
                                                      : "[main]\npath=" + folder.path().toUtf8() + '\n');
        workers.push_back(Start(Selling(own, invoices)));
    }
    for (const auto& worker : workers) {
        ASSERT_TRUE(worker->waitForFinished(300'000));
        EXPECT_EQ(worker->exitCode(), 0) << worker->readAllStandardError().toStdString();
    }
    // Each invoice sells one piece of 100 and a menu that takes two more of it.
    EXPECT_EQ(Rows(u"SELECT Qty FROM Products WHERE ProdCode = '100'"_s),
              QStringList{QString::number(20 - 3 * registers * invoices)});
    EXPECT_EQ(Rows(u"SELECT Qty FROM Products WHERE ProdCode = '300'"_s),
              QStringList{QString::number(10 - registers * invoices)});
    EXPECT_EQ(Rows(u"SELECT Count(*) AS n FROM SalesDetails"_s),
              QStringList{QString::number(3 * registers * invoices)});
    ExpectSoundStore();
}

}  // namespace
