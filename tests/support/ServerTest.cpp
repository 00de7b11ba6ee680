#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <chrono>
#include <csignal>
#include <thread>

#include "store/Database.h"
#include "support/Files.h"
#include "support/Proxy.h"
#include "support/Server.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// What no test of the store could notice.
TEST(ServerTest, NeitherServerNorFolderOutlivesAKilledProcess) {
    int said[2];
    ASSERT_EQ(pipe(said), 0);
    const pid_t child = fork();
    if (child == 0) {
        const drivers::Server own;
        const QByteArray folder = own.Folder().toLatin1();
        if (write(said[1], folder.data(), static_cast<size_t>(folder.size())) > 0) pause();
        _exit(1);
    }
    close(said[1]);
    char text[256] = {};
    ASSERT_GT(read(said[0], text, sizeof text - 1), 0);
    close(said[0]);
    const QString folder = QString::fromLatin1(text);
    const QByteArray lock = drivers::ReadFile(folder + u"/data/postmaster.pid"_s);
    const QString home = u"/proc/%1/cwd"_s.arg(lock.left(lock.indexOf('\n')).toInt());
    ASSERT_EQ(QFile::symLinkTarget(home), folder + u"/data"_s);

    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    for (int wait = 0; wait < 1000 && (QFile::exists(folder) || !QFile::symLinkTarget(home).isEmpty()); ++wait)
        std::this_thread::sleep_for(10ms);
    EXPECT_FALSE(QFile::exists(folder));
    EXPECT_EQ(QFile::symLinkTarget(home), QString());
}

TEST(ProxyTest, ARoundTripIsLongerByTheDelay) {
    drivers::Server& server = drivers::Server::Running();
    drivers::Proxy cable(server);
    const auto place = store::Place::Server(cable.Through(server.NewShop()));
    const auto shop = store::Database::Create(place, store::MainSchema());
    const int before = cable.RoundTrips();
    cable.Delay(30ms);
    const auto start = std::chrono::steady_clock::now();
    for (int trip = 0; trip < 5; ++trip) shop->OpenSnapshot(u"SELECT * FROM Tax"_s);
    EXPECT_GE(cable.RoundTrips() - before, 5);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 30ms * (cable.RoundTrips() - before));
}
