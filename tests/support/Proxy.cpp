#include "support/Proxy.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <optional>
#include <stdexcept>
#include <vector>

#include "support/Server.h"
#include "support/TestFolder.h"

using namespace Qt::StringLiterals;

namespace drivers {

namespace {

// As much as a cable holds; more waits with who sends it.
constexpr std::size_t MostHeld = 64;
constexpr std::size_t ChunkSize = 16384;

std::string SocketIn(const QString& folder) {
    return QFile::encodeName(folder + u"/.s.PGSQL.5432"_s).toStdString();
}

// Binds or connects a socket; -1 when that fails.
int Socket(const std::string& path, int (*tie)(int, const sockaddr*, socklen_t)) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) return -1;
    path.copy(address.sun_path, path.size());
    const int file = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (tie(file, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return file;
    close(file);
    return -1;
}

}  // namespace

bool Proxy::Way::Takes() const {
    return !hasEnded && held.size() < MostHeld;
}

Proxy::Line::~Line() {
    close(up.from);
    close(up.to);
}

Proxy::Proxy(const Server& server)
    : folder_(FolderTemplate()),
      target_(SocketIn(server.Folder())),
      targetFolder_(InUrl(server.Folder())),
      listener_(Socket(SocketIn(folder_.path()), bind)),
      waker_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (listen(listener_, SOMAXCONN) != 0) throw std::runtime_error("the proxy can't listen");
    thread_ = std::thread([this] { Run(); });
}

Proxy::~Proxy() {
    isLast_ = true;
    Wake();
    thread_.join();
    close(listener_);
    close(waker_);
}

QString Proxy::Through(QString url) const {
    return url.replace(targetFolder_, InUrl(folder_.path()));
}

void Proxy::CutAfter(qint64 bytes) {
    const std::lock_guard lock(mutex_);
    left_ = bytes;
    if (bytes == 0) Cut();
    Wake();
}

void Proxy::Freeze(bool freeze) {
    const std::lock_guard lock(mutex_);
    isFrozen_ = freeze;
    Wake();
}

void Proxy::Wake() const {
    eventfd_write(waker_, 1);
}

void Proxy::Cut() {
    lines_.clear();
    left_ = -1;
}

// What the wait found may be out of date by now, so everything is tried.
void Proxy::Run() {
    while (true) {
        Wait();
        const std::lock_guard lock(mutex_);
        if (isLast_) return lines_.clear();
        if (isFrozen_) continue;
        Accept();
        for (Line& line : lines_) {
            for (Way* way : {&line.up, &line.down}) {
                Take(line, *way);
                Pass(line, *way);
            }
        }
        if (left_ == 0) Cut();
        lines_.remove_if([](const Line& line) { return line.up.IsDone() || line.down.IsDone(); });
    }
}

// Until there is something to do.
void Proxy::Wait() {
    std::vector<pollfd> files = {{waker_, POLLIN, 0}};
    std::optional<Clock::duration> wait;
    {
        const std::lock_guard lock(mutex_);
        if (!isFrozen_) files.push_back({listener_, POLLIN, 0});
        for (const Line& line : lines_) {
            if (isFrozen_) break;
            for (const Way* way : {&line.up, &line.down}) {
                if (way->Takes()) files.push_back({way->from, POLLIN, 0});
                if (way->held.empty()) continue;
                const auto early = way->held.front().due - Clock::now();
                if (early > Clock::duration::zero()) {
                    wait = std::min(wait.value_or(early), early);
                } else {
                    files.push_back({way->to, POLLOUT, 0});
                }
            }
        }
    }
    const auto seconds = std::chrono::floor<std::chrono::seconds>(wait.value_or(Clock::duration::zero()));
    const timespec limit = {seconds.count(), wait ? (*wait - seconds).count() : 0};
    ppoll(files.data(), files.size(), wait ? &limit : nullptr, nullptr);
    eventfd_t woken;
    eventfd_read(waker_, &woken);
}

void Proxy::Accept() {
    pollfd file = {listener_, POLLIN, 0};
    while (poll(&file, 1, 0) > 0) {
        const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (client < 0) return;
        const int server = Socket(target_, connect);
        if (server < 0) {
            close(client);
        } else {
            Line& line = lines_.emplace_back();
            line.up.from = line.down.to = client;
            line.up.to = line.down.from = server;
        }
    }
}

void Proxy::Take(Line& line, Way& way) {
    const bool isUp = &way == &line.up;
    while (way.Takes()) {
        std::string bytes(ChunkSize, '\0');
        const ssize_t count = recv(way.from, bytes.data(), bytes.size(), MSG_DONTWAIT);
        if (count < 0 && errno == EAGAIN) return;
        if (count <= 0) {
            way.hasEnded = true;
            return;
        }
        bytes.resize(static_cast<std::size_t>(count));
        if (isUp && line.wasAnswered) ++roundTrips_;
        if (isUp) line.wasAnswered = false;
        way.held.push_back({isUp ? Clock::now() + delay_.load() : Clock::time_point(), std::move(bytes)});
    }
}

void Proxy::Pass(Line& line, Way& way) {
    while (!way.held.empty() && way.held.front().due <= Clock::now() && left_ != 0) {
        std::string& bytes = way.held.front().bytes;
        const auto most = left_ < 0 ? bytes.size() : std::min(bytes.size(), static_cast<std::size_t>(left_));
        const ssize_t count = send(way.to, bytes.data(), most, MSG_DONTWAIT | MSG_NOSIGNAL);
        if (count < 0 && errno == EAGAIN) return;
        if (count < 0) {
            // Nobody is there to take it.
            way.hasEnded = true;
            way.held.clear();
            return;
        }
        bytes_ += count;
        if (left_ > 0) left_ -= count;
        if (&way == &line.down) line.wasAnswered = true;
        bytes.erase(0, static_cast<std::size_t>(count));
        if (bytes.empty()) way.held.pop_front();
    }
}

}  // namespace drivers
