#pragma once

#include <QTemporaryDir>
#include <atomic>
#include <chrono>
#include <deque>
#include <list>
#include <mutex>
#include <string>
#include <thread>

namespace drivers {

class Server;

// The cable between a client and a server, which can be long, cut or pulled. What is asked of it holds when the call
// returns; it may come from any thread.
class Proxy {
public:
    explicit Proxy(const Server& server);
    ~Proxy();
    Proxy(const Proxy&) = delete;
    Proxy& operator=(const Proxy&) = delete;

    // An address of the server, by way of this cable.
    QString Through(QString url) const;

    // All connections are cut when this many bytes more have passed, both directions and all connections together: the
    // last of them still arrives, the next does not. 0 cuts at once. Those that are made afterwards stay whole.
    void CutAfter(qint64 bytes);
    // What the client sends is this much longer on its way, so a round trip costs that much more.
    void Delay(std::chrono::milliseconds delay) { delay_ = delay; }
    // Nothing passes any more, but everything stays open, and new connections seem to be taken.
    void Freeze(bool freeze);

    qint64 Bytes() const { return bytes_; }
    // How often a client sent something after an answer; its greeting and its farewell count too.
    int RoundTrips() const { return roundTrips_; }

private:
    using Clock = std::chrono::steady_clock;
    struct Chunk {
        Clock::time_point due;
        std::string bytes;
    };
    // One direction of a connection.
    struct Way {
        int from = -1;
        int to = -1;
        std::deque<Chunk> held;
        bool hasEnded = false;
        bool Takes() const;
        bool IsDone() const { return hasEnded && held.empty(); }
    };
    struct Line {
        Way up;
        Way down;
        bool wasAnswered = true;
        ~Line();
    };

    void Run();
    void Wait();
    void Accept();
    void Take(Line& line, Way& way);
    void Pass(Line& line, Way& way);
    void Cut();
    void Wake() const;

    QTemporaryDir folder_;
    std::string target_;
    QString targetFolder_;
    int listener_;
    int waker_;

    std::mutex mutex_;
    std::list<Line> lines_;
    qint64 left_ = -1;
    std::atomic<std::chrono::milliseconds> delay_{};
    bool isFrozen_ = false;
    std::atomic<bool> isLast_ = false;
    std::atomic<qint64> bytes_ = 0;
    std::atomic<int> roundTrips_ = 0;

    std::thread thread_;
};

}  // namespace drivers
