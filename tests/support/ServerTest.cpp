#include <gmock/gmock.h>
#include <libpq-fe.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <chrono>
#include <csignal>
#include <memory>
#include <string>
#include <thread>

#include "support/Proxy.h"
#include "support/Server.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using drivers::Proxy;
using drivers::Server;

namespace {

using Result = std::unique_ptr<PGresult, void (*)(PGresult*)>;

class Client {
public:
    explicit Client(const QString& url) : session_(PQconnectdb(url.toUtf8()), PQfinish) {}

    // The first field of the answer, "-" without one.
    std::string Ask(const char* statement) {
        const Result result(PQexec(session_.get(), statement), PQclear);
        return PQntuples(result.get()) > 0 ? PQgetvalue(result.get(), 0, 0) : "-";
    }

private:
    std::unique_ptr<PGconn, void (*)(PGconn*)> session_;
};

QString Shops() {
    return Server::Running().Url(u"shops"_s);
}

TEST(ServerTest, NeitherServerNorFolderOutlivesAKilledProcess) {
    int said[2];
    ASSERT_EQ(pipe(said), 0);
    const pid_t child = fork();
    if (child == 0) {
        const Server own;
        const QByteArray folder = own.Folder().toLatin1();
        if (write(said[1], folder.data(), static_cast<size_t>(folder.size())) > 0) pause();
        _exit(1);
    }
    close(said[1]);
    char text[256] = {};
    ASSERT_GT(read(said[0], text, sizeof text - 1), 0);
    close(said[0]);
    const QString folder = QString::fromLatin1(text);
    QFile lock(folder + u"/data/postmaster.pid"_s);
    ASSERT_TRUE(lock.open(QIODevice::ReadOnly));
    const QString home = u"/proc/%1/cwd"_s.arg(lock.readLine().toInt());
    ASSERT_EQ(QFile::symLinkTarget(home), folder + u"/data"_s);

    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    for (int wait = 0; wait < 1000 && (QFile::exists(folder) || !QFile::symLinkTarget(home).isEmpty()); ++wait)
        std::this_thread::sleep_for(10ms);
    EXPECT_FALSE(QFile::exists(folder));
    EXPECT_EQ(QFile::symLinkTarget(home), QString());
}

TEST(ProxyTest, ACutComesAtTheByteThatWasAskedFor) {
    Proxy proxy(Server::Running());
    const qint64 whole = [&] {
        Client client(proxy.Through(Shops()));
        const qint64 before = proxy.Bytes();
        EXPECT_EQ(client.Ask("SELECT 7"), "7");
        return proxy.Bytes() - before;
    }();
    for (qint64 bytes = 0; bytes <= whole; ++bytes) {
        Client client(proxy.Through(Shops()));
        const qint64 before = proxy.Bytes();
        proxy.CutAfter(bytes);
        EXPECT_EQ(client.Ask("SELECT 7"), bytes < whole ? "-" : "7") << bytes << " of " << whole;
        EXPECT_EQ(proxy.Bytes() - before, bytes);
        EXPECT_EQ(client.Ask("SELECT 8"), "-");
    }
    EXPECT_EQ(Client(proxy.Through(Shops())).Ask("SELECT 9"), "9");
}

}  // namespace
