#pragma once

#include <QByteArray>
#include <QList>
#include <atomic>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

// A printer on the network that takes whole jobs, and may then keep the line open until somebody asks what it took, or
// takes some bytes and then is switched off. Asked how it does it gives
// its answers in turn, hangs up at HangsUp, and is silent when it has none left.
class NetworkPrinter {
public:
    enum class Manner { TakesAll, KeepsTheLineOpen, IsSwitchedOff };
    static constexpr auto HangsUp = "hangs up";

    explicit NetworkPrinter(const QList<QByteArray>& answers) : NetworkPrinter(Manner::TakesAll) { answers_ = answers; }
    explicit NetworkPrinter(Manner manner, int family = AF_INET) : manner_(manner) {
        listener_ = ::socket(family, SOCK_STREAM, 0);
        sockaddr_storage address{};
        address.ss_family = static_cast<sa_family_t>(family);
        if (family == AF_INET6) {
            reinterpret_cast<sockaddr_in6*>(&address)->sin6_addr = in6addr_loopback;
        } else {
            reinterpret_cast<sockaddr_in*>(&address)->sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        }
        socklen_t size = family == AF_INET6 ? sizeof(sockaddr_in6) : sizeof(sockaddr_in);
        isListening_ =
            ::bind(listener_, reinterpret_cast<sockaddr*>(&address), size) == 0 && ::listen(listener_, 1) == 0;
        ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
        port_ = ntohs(reinterpret_cast<sockaddr_in*>(&address)->sin_port);
        if (isListening_) worker_ = std::thread([this] { Serve(); });
    }
    NetworkPrinter(const NetworkPrinter&) = delete;
    NetworkPrinter& operator=(const NetworkPrinter&) = delete;
    ~NetworkPrinter() { Finish(); }

    bool IsListening() const { return isListening_; }
    QByteArray Port() const { return QByteArray::number(port_); }
    // What it took; waits until the job is over.
    QByteArray Taken() {
        Finish();
        return taken_;
    }

private:
    void Serve() {
        for (int job; (job = ::accept(listener_, nullptr, nullptr)) >= 0;) Take(job);
    }
    void Take(int job) {
        char buffer[1000];
        ssize_t count = 0;
        while ((count = ::recv(job, buffer, sizeof buffer, 0)) > 0) {
            const QByteArray bytes(buffer, count);
            const bool isQuestion = bytes.startsWith("\x10\x04") || bytes.startsWith("\x1B\x06\x01");
            if (!isQuestion) taken_ += bytes;
            if (manner_ == Manner::IsSwitchedOff) break;
            if (!isQuestion || answers_.isEmpty()) continue;
            const QByteArray answer = answers_.takeFirst();
            if (answer == HangsUp) break;
            ::send(job, answer.constData(), static_cast<size_t>(answer.size()), MSG_NOSIGNAL);
        }
        while (manner_ == Manner::KeepsTheLineOpen && !isOver_) ::usleep(1000);
        if (manner_ == Manner::IsSwitchedOff)
            ::setsockopt(job, SOL_SOCKET, SO_LINGER, &switchedOff_, sizeof switchedOff_);
        ::close(job);
    }
    void Finish() {
        // A test that failed before it connected must not wait for a job that never comes.
        isOver_ = true;
        ::shutdown(listener_, SHUT_RDWR);
        if (worker_.joinable()) worker_.join();
        if (listener_ >= 0) ::close(listener_);
        listener_ = -1;
    }

    static constexpr linger switchedOff_{.l_onoff = 1, .l_linger = 0};
    Manner manner_;
    int listener_ = -1;
    quint16 port_ = 0;
    bool isListening_ = false;
    std::atomic<bool> isOver_ = false;
    QByteArray taken_;
    QList<QByteArray> answers_;
    std::thread worker_;
};
