#include <QElapsedTimer>
#include <QThread>
#include <cerrno>
#include <utility>

#include <linux/sockios.h>
#include <netdb.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include "output/Channel.h"
#include "output/OsError.h"
#include "output/Sink.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int ConnectTimeoutMs = 5000;
constexpr int StallTimeoutMs = 30000;
// How long a printer that has everything may take to hang up; many keep the line open until the paper is out.
constexpr int HangUpTimeoutMs = 500;

class TcpSink : public Sink {
public:
    TcpSink(int descriptor, QString name) : descriptor_(descriptor), name_(std::move(name)) {}
    TcpSink(const TcpSink&) = delete;
    TcpSink& operator=(const TcpSink&) = delete;
    ~TcpSink() override {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    void Connect(const addrinfo& address, int timeoutMs);
    void Write(const QByteArray& bytes) override;
    void Close() override;

private:
    [[noreturn]] void Fail(int errnoValue) const {
        ThrowOsError(u"Cannot write to the printer "_s + name_, errnoValue);
    }
    int PendingError() const;
    int UntakenBytes() const;
    bool PeerHasHungUp() const;
    void WaitUntilTaken() const;

    int descriptor_;
    QString name_;
};

bool WaitWritable(int descriptor, int timeoutMs) {
    pollfd waiting{.fd = descriptor, .events = POLLOUT, .revents = 0};
    int ready;
    do {
        ready = ::poll(&waiting, 1, timeoutMs);
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

int TcpSink::PendingError() const {
    int error = 0;
    socklen_t size = sizeof error;
    return ::getsockopt(descriptor_, SOL_SOCKET, SO_ERROR, &error, &size) == 0 ? error : errno;
}

// Sent, but not yet acknowledged by the other side.
int TcpSink::UntakenBytes() const {
    int count = 0;
    if (::ioctl(descriptor_, SIOCOUTQ, &count) != 0) Fail(errno);
    return count;
}

// Reads past what a printer reports of itself.
bool TcpSink::PeerHasHungUp() const {
    char answer[512];
    while (true) {
        const ssize_t count = ::recv(descriptor_, answer, sizeof answer, MSG_DONTWAIT);
        if (count == 0) return true;
        if (count > 0 || errno == EINTR) continue;
        if (errno != EAGAIN) Fail(errno);
        return false;
    }
}

void TcpSink::Connect(const addrinfo& address, int timeoutMs) {
    const QString action = u"Cannot reach the printer "_s + name_;
    if (::connect(descriptor_, address.ai_addr, address.ai_addrlen) == 0) return;
    if (errno != EINPROGRESS) ThrowOsError(action, errno);
    if (!WaitWritable(descriptor_, timeoutMs)) ThrowOsError(action, EHOSTUNREACH);
    if (const int error = PendingError()) ThrowOsError(action, error);
}

void TcpSink::Write(const QByteArray& bytes) {
    const char* from = bytes.constData();
    const char* const end = from + bytes.size();
    while (from < end) {
        const ssize_t sent = ::send(descriptor_, from, static_cast<size_t>(end - from), MSG_NOSIGNAL);
        if (sent >= 0) {
            from += sent;
        } else if (errno == EAGAIN) {
            if (!WaitWritable(descriptor_, StallTimeoutMs)) Fail(ETIMEDOUT);
        } else if (errno != EINTR) {
            Fail(errno);
        }
    }
}

// A connection that is closed at once would hide a reset that comes behind the last byte.
void TcpSink::WaitUntilTaken() const {
    QElapsedTimer sinceProgress;
    sinceProgress.start();
    int before = -1;
    while (true) {
        const int untaken = UntakenBytes();
        const bool hungUp = PeerHasHungUp();
        if (const int error = PendingError()) Fail(error);
        if (untaken == 0 && hungUp) return;
        if (std::exchange(before, untaken) != untaken) sinceProgress.restart();
        if (untaken == 0 && sinceProgress.hasExpired(HangUpTimeoutMs)) return;
        if (sinceProgress.hasExpired(StallTimeoutMs)) Fail(ETIMEDOUT);
        QThread::msleep(2);
    }
}

void TcpSink::Close() {
    if (::shutdown(descriptor_, SHUT_WR) != 0) Fail(errno);
    WaitUntilTaken();
    ::close(std::exchange(descriptor_, -1));
}

struct AddressList {
    addrinfo* first = nullptr;
    AddressList() = default;
    AddressList(const AddressList&) = delete;
    AddressList& operator=(const AddressList&) = delete;
    ~AddressList() {
        if (first) ::freeaddrinfo(first);
    }
};

}  // namespace

std::unique_ptr<Sink> ConnectTo(const QString& host, quint16 port) {
    const QString name = host + u':' + QString::number(port);
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    wanted.ai_flags = AI_NUMERICSERV;
    AddressList addresses;
    if (::getaddrinfo(host.toUtf8().constData(), QByteArray::number(port).constData(), &wanted, &addresses.first) != 0)
        throw OutputError(DeviceUnavailable, u"The printer "_s + name + u" has no known address."_s);

    QElapsedTimer timer;
    timer.start();
    for (const addrinfo* address = addresses.first;; address = address->ai_next) {
        const int descriptor = ::socket(address->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        if (descriptor < 0 && address->ai_next) continue;
        if (descriptor < 0) ThrowOsError(u"Cannot reach the printer "_s + name, errno);
        auto sink = std::make_unique<TcpSink>(descriptor, name);
        try {
            sink->Connect(*address, std::max(0, ConnectTimeoutMs - static_cast<int>(timer.elapsed())));
            return sink;
        } catch (const OutputError&) {
            if (!address->ai_next) throw;
        }
    }
}

}  // namespace output
