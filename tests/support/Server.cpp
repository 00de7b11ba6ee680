#include "support/Server.h"

#include <fcntl.h>
#include <grp.h>
#include <libpq-fe.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QUrl>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>

#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace drivers {

namespace {

constexpr int OldestVersion = 15;
constexpr qint64 Room = 512 << 20;
constexpr auto LongestStart = 60s;

// Under mmap the shared memory lies in the folder, so that a killed server leaves none behind.
const std::vector<std::string> TestSettings = {"listen_addresses=", "fsync=off", "shared_buffers=16MB",
                                               "max_connections=60", "dynamic_shared_memory_type=mmap"};

// Who owns the server; null when it is who we are.
const passwd* Owner() {
    if (geteuid() != 0) return nullptr;
    for (const char* name : {"postgres", "nobody"}) {
        if (const passwd* user = getpwnam(name)) return user;
    }
    throw std::runtime_error("no user to run the server as: neither postgres nor nobody");
}

bool HasServer(const QString& folder) {
    return QFile::exists(folder + u"/initdb"_s) && QFile::exists(folder + u"/postgres"_s);
}

// What pg_config says, on systems that keep the programs elsewhere.
QString ConfiguredFolder() {
    const std::unique_ptr<FILE, int (*)(FILE*)> said(popen("pg_config --bindir 2>/dev/null", "re"), pclose);
    char line[4096];
    return said && fgets(line, sizeof line, said.get()) ? QString::fromLocal8Bit(line).trimmed() : QString();
}

std::string Program(const QString& name) {
    const QDir versions(u"/usr/lib/postgresql"_s);
    QString newest;
    int version = OldestVersion - 1;
    for (const QString& entry : versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString folder = versions.filePath(entry + u"/bin"_s);
        if (entry.toInt() <= version || !HasServer(folder)) continue;
        version = entry.toInt();
        newest = folder;
    }
    if (newest.isEmpty()) newest = ConfiguredFolder();
    if (!HasServer(newest)) throw std::runtime_error("no PostgreSQL server of version 15 or newer: install postgresql");
    return (newest + u'/' + name).toStdString();
}

// Starts a program in the folder as the owner of the server. It is told to quit when the thread that called ends.
pid_t Spawn(std::vector<std::string> command, const QString& folder, int input = -1) {
    std::vector<char*> words;
    for (std::string& word : command) words.push_back(word.data());
    words.push_back(nullptr);
    const passwd* owner = Owner();
    const QByteArray home = QFile::encodeName(folder);
    const QByteArray log = home + "/log";
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("no process for the server");
    if (child != 0) return child;

    // Other threads may hold any lock, so nothing here asks for memory.
    dup2(input >= 0 ? input : open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(open(log, O_WRONLY | O_CREAT | O_APPEND, 0600), STDOUT_FILENO);
    dup2(STDOUT_FILENO, STDERR_FILENO);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    setsid();
    const bool isOurs =
        !owner || (setgroups(1, &owner->pw_gid) == 0 && setgid(owner->pw_gid) == 0 && setuid(owner->pw_uid) == 0);
    // Only now, for a change of the user takes it back.
    prctl(PR_SET_PDEATHSIG, SIGQUIT);
    if (isOurs && chdir(home) == 0 && getppid() == parent) execv(words.front(), words.data());
    _exit(127);
}

int Wait(pid_t child) {
    int status = 0;
    TEMP_FAILURE_RETRY(waitpid(child, &status, 0));
    return status;
}

[[noreturn]] void Fail(const std::string& what, const QString& folder) {
    QFile log(folder + u"/log"_s);
    const QByteArray said = log.open(QIODevice::ReadOnly) ? log.readAll().right(2000) : QByteArray();
    throw std::runtime_error(what + ":\n" + said.toStdString());
}

struct Process {
    char state = 'X';
    pid_t parent = 0;
    bool IsGone() const { return state == 'X' || state == 'Z'; }
};

Process Look(pid_t id) {
    QFile file(u"/proc/%1/stat"_s.arg(id));
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray text = file.readAll();
    Process process;
    // Behind the name, which may hold anything.
    sscanf(text.constData() + text.lastIndexOf(')') + 1, " %c %d", &process.state, &process.parent);
    return process;
}

std::vector<pid_t> ChildrenOf(pid_t parent) {
    std::vector<pid_t> children;
    for (const QString& entry : QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const pid_t id = entry.toInt();
        if (id != 0 && Look(id).parent == parent) children.push_back(id);
    }
    return children;
}

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

Server::Server(const QString& folderTemplate) : folder_(folderTemplate) {
    RemoveFolderWithUs();
    MakeData();
    Start();
    Execute(Url(u"postgres"_s), "CREATE DATABASE shops");
}

Server::~Server() {
    if (Runs()) End(SIGQUIT);
    folder_.remove();
    close(heldOpen_);
}

bool Server::Runs() const {
    return process_ != 0 && ended_.wait_for(0s) != std::future_status::ready;
}

// A shell without a parent waits for the end of a pipe that we alone hold open; no signal to us reaches it.
void Server::RemoveFolderWithUs() {
    const QByteArray path = QFile::encodeName(Folder());
    const passwd* owner = Owner();
    if (owner && chown(path, owner->pw_uid, owner->pw_gid) != 0) throw std::runtime_error("can't give away the folder");
    int pipe[2];
    if (pipe2(pipe, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    heldOpen_ = pipe[1];
    // What the server was writing when it died with us may come in between.
    const char* wait = R"(exec 3<&0
        (read -r end <&3; for try in 1 2 3 4 5 6 7 8 9; do rm -rf "$0" && exit; sleep 0.2; done) &)";
    Wait(Spawn({"/bin/sh", "-c", wait, path.toStdString()}, Folder(), pipe[0]));
    close(pipe[0]);
}

void Server::MakeData() {
    const pid_t maker = Spawn({Program(u"initdb"_s), "-D", "data", "-U", "velton", "-A", "trust", "-E", "UTF8",
                               "--locale=C.UTF-8", "--no-sync", "--no-instructions", "--wal-segsize=1"},
                              Folder());
    if (Wait(maker) != 0) Fail("initdb failed", Folder());
}

void Server::Start(const std::vector<std::string>& settings) {
    if (Runs()) Stop();
    std::vector<std::string> command = {Program(u"postgres"_s), "-D", "data", "-k",
                                        Folder().toStdString(), "-p", "5432"};
    for (const auto* list : {&TestSettings, &settings}) {
        for (const std::string& setting : *list) command.insert(command.end(), {"-c", setting});
    }
    // A thread for as long as the server lives, since it would end with the one that started it.
    std::promise<pid_t> started;
    auto process = started.get_future();
    ended_ = std::async(std::launch::async, [command, folder = Folder(), started = std::move(started)]() mutable {
        const pid_t child = Spawn(command, folder);
        started.set_value(child);
        Wait(child);
    });
    process_ = process.get();

    const QByteArray url = Url(u"postgres"_s).toUtf8();
    const auto latest = std::chrono::steady_clock::now() + LongestStart;
    while (PQping(url) != PQPING_OK) {
        if (ended_.wait_for(5ms) == std::future_status::ready) Fail("the server ended at its start", Folder());
        if (std::chrono::steady_clock::now() > latest) Fail("the server takes no connections", Folder());
    }
}

void Server::Stop() {
    if (Runs()) End(SIGINT);
}

void Server::Kill() {
    if (!Runs()) return;
    // It must not start anything while its children are looked for.
    kill(process_, SIGSTOP);
    while (!Look(process_).IsGone() && Look(process_).state != 'T') std::this_thread::sleep_for(1ms);
    const auto children = ChildrenOf(process_);
    for (const pid_t child : children) kill(child, SIGKILL);
    End(SIGKILL);
    for (const pid_t child : children) {
        while (!Look(child).IsGone()) std::this_thread::sleep_for(1ms);
    }
}

void Server::End(int signal) {
    kill(process_, signal);
    ended_.wait();
    process_ = 0;
}

QString Server::Url(const QString& database, const QString& schema) const {
    const QString url = u"postgresql:///%1?host=%2&user=velton"_s.arg(InUrl(database), InUrl(Folder()));
    return schema.isEmpty() ? url : url + u"&schema="_s + InUrl(schema);
}

QString Server::NewShop() {
    return Url(u"shops"_s, u"shop%1"_s.arg(++shops_));
}

}  // namespace drivers
