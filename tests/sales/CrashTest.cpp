#include <QProcess>
#include <QRandomGenerator>
#include <QThread>
#include <csignal>

#include "delivery/Delivery.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;

namespace {

const auto Poster = QStringLiteral(PROGRAMS "/till-poster");
const auto Tool = QStringLiteral(PROGRAMS "/velton-store");
constexpr int ManyInvoices = 100000;

// Real processes that post, killed at random moments or working side by side on one store.
class CrashTest : public drivers::TillTest {
protected:
    static std::unique_ptr<QProcess> StartPoster(const QString& folder, int invoices) {
        auto process = std::make_unique<QProcess>();
        process->start(Poster, {folder, u"100"_s, QString::number(invoices)});
        return process;
    }

    void ExpectSoundStore() const {
        QProcess check;
        check.start(Tool, {u"check"_s, folder.path()});
        ASSERT_TRUE(check.waitForFinished());
        EXPECT_EQ(check.exitCode(), 0) << check.readAllStandardError().toStdString()
                                       << check.readAllStandardOutput().toStdString();
    }
};

TEST_F(CrashTest, KillingWhilePostingLosesNothingAcknowledged) {
    const int rounds = qEnvironmentVariableIntValue("VELTON_KILL_ROUNDS") ?: 12;
    QStringList acknowledged;
    for (int round = 0; round < rounds; ++round) {
        const auto poster = StartPoster(folder.path(), ManyInvoices);
        ASSERT_TRUE(poster->waitForReadyRead(20000)) << poster->readAllStandardError().toStdString();
        QThread::msleep(QRandomGenerator::global()->bounded(1u, 120u));
        kill(static_cast<pid_t>(poster->processId()), SIGKILL);
        ASSERT_TRUE(poster->waitForFinished());
        const QString printed = QString::fromLatin1(poster->readAllStandardOutput());
        acknowledged += printed.first(printed.lastIndexOf(u'\n') + 1).split(u'\n', Qt::SkipEmptyParts);
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
    RecordProperty("acknowledged", static_cast<int>(acknowledged.size()));
    std::printf("%d rounds, %lld invoices acknowledged, %lld stored\n", rounds,
                static_cast<long long>(acknowledged.size()), static_cast<long long>(stored.size()));
}

TEST_F(CrashTest, EightRegistersSellOneProductAndTheStockIsExact) {
    constexpr int registers = 8;
    constexpr int invoices = 25;
    std::vector<std::unique_ptr<QProcess>> posters;
    std::vector<std::unique_ptr<QTemporaryDir>> folders;
    for (int number = 0; number < registers; ++number) {
        folders.push_back(std::make_unique<QTemporaryDir>());
        const QString own = folders.back()->path();
        delivery::MakeProgramFolder(own, false);
        QFile::remove(own + u"/ORVA.pos"_s);
        ASSERT_TRUE(QFile::copy(Path(u"opt.pos"_s), own + u"/opt2.pos"_s));
        QFile::remove(own + u"/opt.pos"_s);
        ASSERT_TRUE(QFile::rename(own + u"/opt2.pos"_s, own + u"/opt.pos"_s));
        QFile ini(own + u"/store.ini"_s);
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
        ini.write("[main]\npath=" + folder.path().toUtf8() + "\n");
        ini.close();
        posters.push_back(StartPoster(own, invoices));
    }
    for (const auto& poster : posters) {
        ASSERT_TRUE(poster->waitForFinished(120000));
        EXPECT_EQ(poster->exitCode(), 0) << poster->readAllStandardError().toStdString();
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
