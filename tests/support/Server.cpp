#include "support/Server.h"

#include <libpq-fe.h>
#include <unistd.h>

#include <QFile>
#include <QUrl>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>
#include <utility>

#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace drivers {

namespace {

constexpr qint64 Room = 512 << 20;
constexpr auto LongestStart = 60s;

void Execute(const QString& url, const char* statement) {
    const std::unique_ptr<PGconn, void (*)(PGconn*)> session(PQconnectdb(url.toUtf8()), PQfinish);
    const std::unique_ptr<PGresult, void (*)(PGresult*)> result(PQexec(session.get(), statement), PQclear);
    if (PQresultStatus(result.get()) != PGRES_COMMAND_OK) throw std::runtime_error(PQerrorMessage(session.get()));
}

}  // namespace

QString InUrl(const QString& text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(text, "/"));
}

Server& Server::Running() {
    // Not a static object: a child of a test would end the server of its parent.
    static Server* server = nullptr;
    static const pid_t owner = getpid();
    if (!server) {
        server = new Server;
        std::atexit([] {
            if (getpid() == owner) delete server;
        });
    }
    return *server;
}

Server::Server() : Server(FolderTemplate(Room)) {}

// The shell is beyond the reach of signals to us, and sees our end by that of its input.
Server::Server(const QString& folderTemplate)
    : folder_(folderTemplate),
      shell_(popen(qPrintable(u"exec setsid sh '" SERVER_SCRIPT "' '%1'"_s.arg(Folder())), "we")) {
    Start();
    Execute(Url(u"postgres"_s), "CREATE DATABASE shops");
}

Server::~Server() {
    pclose(shell_);
}

void Server::Tell(const std::string& command) {
    std::fputs(command.c_str(), shell_);
    std::fflush(shell_);
}

bool Server::HasEnded() const {
    return QFile::exists(Folder() + u"/ended"_s);
}

void Server::Start(const std::vector<std::string>& settings) {
    Stop();
    QFile::remove(Folder() + u"/ended"_s);
    std::string command = "start";
    for (const std::string& setting : settings) command += ' ' + setting;
    Tell(command + '\n');
    runs_ = true;
    const auto latest = std::chrono::steady_clock::now() + LongestStart;
    while (PQping(Url(u"postgres"_s).toUtf8()) != PQPING_OK) {
        if (HasEnded() || std::chrono::steady_clock::now() > latest) {
            QFile log(Folder() + u"/log"_s);
            const QByteArray said = log.open(QIODevice::ReadOnly) ? log.readAll().right(2000) : QByteArray();
            throw std::runtime_error("the server does not start:\n" + said.toStdString());
        }
        std::this_thread::sleep_for(5ms);
    }
}

void Server::End(const std::string& command) {
    if (!std::exchange(runs_, false)) return;
    Tell(command);
    while (!HasEnded()) std::this_thread::sleep_for(1ms);
}

QString Server::Url(const QString& database, const QString& schema) const {
    const QString url = u"postgresql:///%1?host=%2&user=velton"_s.arg(InUrl(database), InUrl(Folder()));
    return schema.isEmpty() ? url : url + u"&schema="_s + InUrl(schema);
}

QString Server::NewShop() {
    return Url(u"shops"_s, u"shop%1"_s.arg(++shops_));
}

}  // namespace drivers
