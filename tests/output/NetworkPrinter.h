#pragma once

#include <QByteArray>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

// A printer on the network that takes one job: all of it, or some bytes and then it is switched off.
class NetworkPrinter {
public:
    enum class Manner { TakesAll, KeepsTheLineOpen, IsSwitchedOff };

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
        const int job = ::accept(listener_, nullptr, nullptr);
        char buffer[1000];
        ssize_t count = 0;
        while ((count = ::recv(job, buffer, sizeof buffer, 0)) > 0) {
            taken_.append(buffer, count);
            if (manner_ == Manner::IsSwitchedOff) break;
        }
        if (manner_ == Manner::KeepsTheLineOpen) ::usleep(1'500'000);
        if (manner_ == Manner::IsSwitchedOff)
            ::setsockopt(job, SOL_SOCKET, SO_LINGER, &switchedOff_, sizeof switchedOff_);
        ::close(job);
    }
    void Finish() {
        // A test that failed before it connected must not wait for a job that never comes.
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
    QByteArray taken_;
    std::thread worker_;
};
