#include <QElapsedTimer>
#include <QThread>
#include <cerrno>

#include <linux/sockios.h>
#include <netdb.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include "output/Channel.h"
#include "output/Descriptor.h"
#include "output/OsError.h"
#include "output/Patience.h"
#include "output/Sink.h"
#include "output/Words.h"

namespace output {

namespace {

constexpr int ConnectTimeoutMs = 5000;
// How long a printer that has everything may take to hang up; many keep the line open until the paper is out.
constexpr int HangUpTimeoutMs = 500;
constexpr int LookEveryMs = 20;

QString ReachWords() {
    return Words::tr("Cannot reach the printer %1: %2.");
}

class TcpSink : public Sink {
public:
    TcpSink(int descriptor, QString name, const Port& port)
        : socket_(descriptor), name_(std::move(name)), port_(port) {}

    // Throws when the address cannot be reached before the wait ends.
    void Connect(const addrinfo& address, Wait& wait);
    void Write(const QByteArray& bytes) override;
    void Close() override;
    int AskedDescriptor() const override { return port_.isAsked ? socket_.Number() : -1; }

private:
    [[noreturn]] void Fail(int errnoValue) const { ThrowOsError(WriteWords(), name_, errnoValue); }
    static QString WriteWords() { return Words::tr("Cannot write to the printer %1: %2."); }
    WaitWords WordsOfWait() const { return {WriteWords(), WaitsForPrinter(port_.name, name_), name_}; }
    int PendingError() const;
    int UntakenBytes() const;
    bool PeerHasHungUp() const;
    void WaitUntilTaken() const;

    Descriptor socket_;
    QString name_;
    Port port_;
    bool failed_ = false;
};

// A moment at most.
bool IsWritable(int descriptor) {
    pollfd waiting{.fd = descriptor, .events = POLLOUT, .revents = 0};
    return ::poll(&waiting, 1, LookEveryMs) > 0;
}

int TcpSink::PendingError() const {
    int error = 0;
    socklen_t size = sizeof error;
    return ::getsockopt(socket_.Number(), SOL_SOCKET, SO_ERROR, &error, &size) == 0 ? error : errno;
}

// Sent, but not yet acknowledged by the other side.
int TcpSink::UntakenBytes() const {
    int count = 0;
    if (::ioctl(socket_.Number(), SIOCOUTQ, &count) != 0) Fail(errno);
    return count;
}

// Reads past what a printer reports of itself.
bool TcpSink::PeerHasHungUp() const {
    char answer[512];
    while (true) {
        const ssize_t count = ::recv(socket_.Number(), answer, sizeof answer, MSG_DONTWAIT);
        if (count == 0) return true;
        if (count > 0 || errno == EINTR) continue;
        if (errno != EAGAIN) Fail(errno);
        return false;
    }
}

void TcpSink::Connect(const addrinfo& address, Wait& wait) {
    const auto fail = [this](int error) { ThrowOsError(ReachWords(), name_, error); };
    if (::connect(socket_.Number(), address.ai_addr, address.ai_addrlen) == 0) return;
    if (errno != EINPROGRESS) fail(errno);
    while (!IsWritable(socket_.Number())) wait.GoOn();
    if (const int error = PendingError()) fail(error);
}

void TcpSink::Write(const QByteArray& bytes) {
    failed_ = true;
    Wait wait(WordsOfWait(), StallTimeoutMs);
    qint64 sent = 0;
    while (sent < bytes.size()) {
        const auto size = static_cast<size_t>(bytes.size() - sent);
        const ssize_t count = ::send(socket_.Number(), bytes.constData() + sent, size, MSG_NOSIGNAL);
        if (count < 0 && errno != EAGAIN && errno != EINTR) Fail(errno);
        if (count >= 0)
            sent += count;
        else if (errno == EAGAIN && !IsWritable(socket_.Number()))
            wait.GoOn(sent);
    }
    failed_ = false;
}

// A connection that is closed at once would hide a reset that comes behind the last byte.
void TcpSink::WaitUntilTaken() const {
    Wait wait(WordsOfWait(), StallTimeoutMs);
    QElapsedTimer sinceTaken;
    sinceTaken.start();
    while (true) {
        const int untaken = UntakenBytes();
        const bool hungUp = PeerHasHungUp();
        if (const int error = PendingError()) Fail(error);
        if (untaken == 0 && (hungUp || sinceTaken.hasExpired(HangUpTimeoutMs))) return;
        if (untaken != 0) sinceTaken.restart();
        wait.GoOn(untaken);
        QThread::msleep(2);
    }
}

// What has failed is not waited for a second time.
void TcpSink::Close() {
    if (failed_) return;
    failed_ = true;
    if (::shutdown(socket_.Number(), SHUT_WR) != 0) Fail(errno);
    WaitUntilTaken();
    socket_.Close();
}

using Addresses = std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)>;

Addresses Lookup(const QByteArray& host, const QByteArray& number, int flags) {
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    wanted.ai_flags = AI_NUMERICSERV | flags;
    addrinfo* first = nullptr;
    const int error = ::getaddrinfo(host.constData(), number.constData(), &wanted, &first);
    return {error == 0 ? first : nullptr, &::freeaddrinfo};
}

// A name is asked for beside the program's own thread: a name server that is gone keeps whoever asks for a long time.
Addresses AddressesOf(const QString& host, quint16 number, const WaitWords& words) {
    const QByteArray name = host.toUtf8();
    const QByteArray service = QByteArray::number(number);
    if (auto numeric = Lookup(name, service, AI_NUMERICHOST)) return numeric;
    return Wait(words, ConnectTimeoutMs).For([name, service] { return Lookup(name, service, 0); });
}

}  // namespace

std::unique_ptr<Sink> ConnectTo(const QString& host, quint16 number, const Port& port) {
    const QString name = host + u':' + QString::number(number);
    const WaitWords words{ReachWords(), WaitsForPrinter(port.name, name), name};
    const Addresses addresses = AddressesOf(host, number, words);
    if (!addresses)
        throw OutputError(values::DeviceUnavailable, Words::tr("The printer %1 has no known address.").arg(name));

    Wait wait(words, ConnectTimeoutMs);
    for (const addrinfo* address = addresses.get();; address = address->ai_next) {
        const int descriptor = ::socket(address->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        if (descriptor < 0 && address->ai_next) continue;
        if (descriptor < 0) ThrowOsError(words.error, name, errno);
        auto sink = std::make_unique<TcpSink>(descriptor, name, port);
        try {
            sink->Connect(*address, wait);
            return sink;
        } catch (const OutputError&) {
            if (!address->ai_next) throw;
        }
    }
}

}  // namespace output
