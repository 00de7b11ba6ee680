#pragma once

#include <libpq-fe.h>

#include <QElapsedTimer>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "store/Place.h"
#include "store/postgres/Answer.h"
#include "store/postgres/Arguments.h"

namespace store::postgres {

// A statement and what is bound to it; both live as long as the trip.
class Command {
public:
    Command(const std::string& sql, const Arguments& arguments) : sql_(&sql), arguments_(&arguments) {}
    const std::string& Sql() const { return *sql_; }
    const Arguments& Bound() const { return *arguments_; }

private:
    const std::string* sql_;
    const Arguments* arguments_;
};

// One connection to a server. The library's C++ sibling in Debian waits for an answer without an end; here every wait
// can be left, and the statements of one trip go out together, so that they cost one way there and back.
class Client {
public:
    // Asked every few milliseconds of a wait, with the time that it has taken; false leaves it.
    using GoesOn = std::function<bool(int milliseconds)>;

    // Connects, within seconds; ServerLost when that fails or `goesOn` says no.
    Client(const Place& place, const GoesOn& goesOn);
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    // Whether the other side still holds the connection, as far as can be told without asking it.
    bool IsAlive();

    // The rows of the main statement, each an answer of one row.
    using TakeRow = std::function<void(const Answer& row)>;

    struct Trip {
        std::vector<Command> commands;
        size_t main = 0;  // the one whose answer is wanted
        GoesOn goesOn = {};
        TakeRow takeRow = {};
    };
    // Outside a transaction the statements of a trip stand or fall as one. A StoreError when one is refused, the
    // first of them; ServerLost when the connection ends on the way, of which nobody knows how far it came; Left when
    // `goesOn` said no.
    Answer Make(const Trip& trip);

    struct Left {
        bool isLost = false;  // the server did not even hear of it, and the connection is given up
    };

private:
    // What is awaited from the server next, in order.
    struct Awaited {
        const std::string* prepares = nullptr;  // the statement that is made ready; null for one that runs
        bool isMain = false;
    };

    void Send(const Command& command, bool isMain);
    Answer Collect(const Trip& trip);
    void CollectOne(const Trip& trip, const Awaited& awaited, Answer& wanted, Answer& refused);
    Answer Next(const Trip& trip);
    void WaitForAnswer(const Trip& trip);
    void AskWhetherToGoOn(const Trip& trip);
    void Stop();
    void AwaitStop();
    [[noreturn]] void ThrowLost();

    struct Finish {
        void operator()(PGconn* connection) const { PQfinish(connection); }
    };
    const QString server_;
    std::unique_ptr<PGconn, Finish> connection_;
    std::unordered_map<std::string, std::string> names_;  // of the statements that the server has ready
    int lastName_ = 0;
    std::vector<Awaited> awaited_;
    QElapsedTimer sinceSent_;
    qint64 askedAt_ = 0;               // in milliseconds since then
    std::optional<qint64> stoppedAt_;  // likewise
    std::future<void> stop_;           // while the server is asked to stop
    bool isUnderWay_ = false;          // a trip whose answers are not all here
    bool wasWarned_ = false;           // on it
};

}  // namespace store::postgres
