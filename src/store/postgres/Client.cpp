#include "store/postgres/Client.h"

#include <poll.h>

#include <QRegularExpression>
#include <algorithm>
#include <thread>

#include "store/Words.h"
#include "store/postgres/ServerError.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

namespace {

constexpr int BetweenQuestions = 5;  // milliseconds
constexpr int LongestConnecting = 12'000;
constexpr int LongestStop = 1'000;        // that a server takes to drop a statement
constexpr size_t MostStatements = 2'000;  // kept on the server

using Attempt = std::unique_ptr<PGconn, decltype(&PQfinish)>;

// A server that is gone is to be noticed within seconds; an address may say otherwise, since what stands behind counts.
Attempt Connect(const QByteArray& address, const char* settings) {
    // Of several servers the one that takes changes is meant, whichever that is today.
    static const QRegularExpression list(u"^[^?]*,|[?&]host(addr)?=[^&]*(,|%2C)"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    const bool areSeveral = list.match(QString::fromUtf8(address)).hasMatch();
    const std::pair<const char*, const char*> options[] = {{"connect_timeout", "3"},
                                                           {"keepalives_idle", "4"},
                                                           {"keepalives_interval", "2"},
                                                           {"keepalives_count", "3"},
                                                           {"tcp_user_timeout", "8000"},
                                                           {"target_session_attrs", areSeveral ? "read-write" : "any"},
                                                           {"fallback_application_name", "velton"},
                                                           {"options", settings},
                                                           {"dbname", address.constData()},
                                                           {"client_encoding", "UTF8"},
                                                           {nullptr, nullptr}};
    std::vector<const char*> names, values;
    for (const auto& [name, value] : options) {
        names.push_back(name);
        values.push_back(value);
    }
    return {PQconnectdbParams(names.data(), values.data(), 1), &PQfinish};
}

// The library would print the server's warnings. A pooler in between may take no settings.
Attempt Connect(const QByteArray& address) {
    Attempt attempt = Connect(address, "-c client_min_messages=error");
    const bool isRefused = QByteArrayView(PQerrorMessage(attempt.get())).contains("unsupported startup parameter");
    return isRefused ? Connect(address, "") : std::move(attempt);
}

// Names may be looked up for long and hosts be silent, so the attempt has a thread, which is left alone when nobody
// waits for it any more.
Attempt ConnectWithin(const Place& place, const Client::GoesOn& goesOn) {
    std::promise<Attempt> promise;
    std::future<Attempt> attempt = promise.get_future();
    std::thread([address = place.Address().toUtf8(), promise = std::move(promise)]() mutable {
        promise.set_value(Connect(address));
    }).detach();
    QElapsedTimer since;
    since.start();
    while (attempt.wait_for(std::chrono::milliseconds(BetweenQuestions)) != std::future_status::ready) {
        const int waited = static_cast<int>(since.elapsed());
        if (waited > LongestConnecting || (goesOn && !goesOn(waited))) return {nullptr, &PQfinish};
    }
    return attempt.get();
}

// Stands behind "The server cannot be reached: ".
QString WhyNotConnected(PGconn* connection) {
    if (connection == nullptr) return Words::tr("it does not answer");
    if (PQconnectionNeedsPassword(connection) != 0)
        return Words::tr("it asks for a password, and ~/.pgpass has none for it");
    // A line an attempt, "WHERE: WHY", the last server last, and words that explain it.
    QStringList lines = QString::fromUtf8(PQerrorMessage(connection)).split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString& line) {
        return line.startsWith(u'\t') || line.startsWith(u"DETAIL:") || line.startsWith(u"HINT:") ||
               line.startsWith(u"password retrieved");
    });
    if (const QStringList attempts = lines.filter(u": "_s); !attempts.isEmpty()) lines = attempts;
    if (lines.isEmpty()) return {};
    // A server that refused was asked once more without TLS, which it may refuse whatever the matter is.
    const QString where = lines.last().section(u": "_s, 0, 0);
    const auto isFromThere = [&where](const QString& line) { return line.startsWith(where); };
    QString why = *std::ranges::find_if(lines, isFromThere);
    // The message names the server already; which of several refused has to be said.
    static const QRegularExpression way(u"^connection to server .*? failed: "_s);
    if (std::ranges::all_of(lines, isFromThere)) why.remove(way);
    return OneSentence(why.remove(u"FATAL:  "_s));
}

void CheckAddress(const Place& place) {
    char* why = nullptr;
    PQconninfoOption* options = PQconninfoParse(place.Address().toUtf8().constData(), &why);
    PQfreemem(why);
    if (options == nullptr)
        throw StoreError(IniNotReadable, Words::tr("The address of the server %1 cannot be read.").arg(place.Shown()));
    PQconninfoFree(options);
}

}  // namespace

Client::Client(const Place& place, const GoesOn& goesOn) : server_(place.Shown()) {
    CheckAddress(place);
    connection_.reset(ConnectWithin(place, goesOn).release());
    if (PQstatus(connection_.get()) != CONNECTION_OK)
        throw ServerLost(Words::tr("The server of the store %1 cannot be reached: %2.")
                             .arg(server_, WhyNotConnected(connection_.get())));
    PQsetNoticeReceiver(
        connection_.get(),
        [](void* self, const PGresult* notice) {
            const QByteArrayView severity = PQresultErrorField(notice, PG_DIAG_SEVERITY_NONLOCALIZED);
            if (severity == "WARNING") static_cast<Client*>(self)->wasWarned_ = true;
        },
        this);
    PQsetnonblocking(connection_.get(), 1);
    PQenterPipelineMode(connection_.get());
}

Client::~Client() = default;

bool Client::IsAlive() {
    pollfd socket{PQsocket(connection_.get()), POLLIN, 0};
    while (PQstatus(connection_.get()) == CONNECTION_OK && poll(&socket, 1, 0) > 0)
        if (PQconsumeInput(connection_.get()) == 0) return false;
    return PQstatus(connection_.get()) == CONNECTION_OK;
}

Answer Client::Make(const Trip& trip) {
    AwaitStop();
    awaited_.clear();
    wasWarned_ = false;
    isUnderWay_ = true;
    stoppedAt_.reset();
    askedAt_ = 0;
    sinceSent_.start();
    // Behind a refusal a batch takes nothing but the way back.
    if (names_.size() > MostStatements && PQtransactionStatus(connection_.get()) != PQTRANS_INERROR) {
        static const std::string forget = "DEALLOCATE ALL";
        names_.clear();
        Send({forget, {}}, false);
    }
    for (size_t i = 0; i < trip.commands.size(); ++i) Send(trip.commands[i], i == trip.main);
    if (PQpipelineSync(connection_.get()) == 0) ThrowLost();
    try {
        return Collect(trip);
    } catch (...) {
        if (isUnderWay_) connection_.reset();  // with answers on their way that nobody waits for
        throw;
    }
}

// A statement that the server does not have ready goes ahead of its first use.
void Client::Send(const Command& command, bool isMain) {
    const auto [known, isNew] = names_.try_emplace(command.Sql());
    const auto& [sql, name] = *known;
    if (isNew) {
        known->second = 'v' + std::to_string(++lastName_);
        if (PQsendPrepare(connection_.get(), name.c_str(), sql.c_str(), 0, nullptr) == 0) ThrowLost();
        awaited_.push_back({.prepares = &sql});
    }
    const auto values = command.Bound().Pointers();
    if (PQsendQueryPrepared(connection_.get(), name.c_str(), command.Bound().Count(), values.data(), nullptr, nullptr,
                            0) == 0)
        ThrowLost();
    awaited_.push_back({.isMain = isMain});
}

Answer Client::Collect(const Trip& trip) {
    Answer wanted, refused;
    for (const Awaited& awaited : awaited_) CollectOne(trip, awaited, wanted, refused);
    Next(trip);  // that the trip is over
    isUnderWay_ = false;
    // Asked to stop waiting for a standby, the server warns and goes on.
    if (!refused && stoppedAt_ && wasWarned_)
        throw ServerLost(Words::tr("The server of the store %1 has not heard from its standby.").arg(server_));
    if (!refused) return wanted;
    if (TellsOfTheEnd(refused.Get())) ThrowLost();
    if (stoppedAt_ && IsCancelled(refused.Get())) throw Left{};
    ThrowRefused(refused.Get());
}

void Client::CollectOne(const Trip& trip, const Awaited& awaited, Answer& wanted, Answer& refused) {
    bool isDone = true;
    if (awaited.isMain && trip.takeRow) PQsetSingleRowMode(connection_.get());
    while (Answer answer = Next(trip)) {
        switch (PQresultStatus(answer.Get())) {
            case PGRES_SINGLE_TUPLE:
                trip.takeRow(answer);
                break;
            case PGRES_FATAL_ERROR:
                if (!refused) refused = std::move(answer);
                isDone = false;
                break;
            case PGRES_PIPELINE_ABORTED:
                isDone = false;
                break;
            default:
                if (awaited.isMain) wanted = std::move(answer);
        }
    }
    if (awaited.prepares != nullptr && !isDone) names_.erase(*awaited.prepares);
}

Answer Client::Next(const Trip& trip) {
    WaitForAnswer(trip);
    Answer answer(PQgetResult(connection_.get()));
    if (PQstatus(connection_.get()) != CONNECTION_OK) ThrowLost();
    return answer;
}

void Client::WaitForAnswer(const Trip& trip) {
    while (true) {
        const int unsent = PQflush(connection_.get());
        if (unsent < 0) ThrowLost();
        AskWhetherToGoOn(trip);
        if (unsent == 0 && PQisBusy(connection_.get()) == 0) return;
        const short wanted = unsent > 0 ? POLLIN | POLLOUT : POLLIN;
        pollfd socket{PQsocket(connection_.get()), wanted, 0};
        if (poll(&socket, 1, BetweenQuestions) > 0 && PQconsumeInput(connection_.get()) == 0) ThrowLost();
    }
}

void Client::AskWhetherToGoOn(const Trip& trip) {
    const qint64 now = sinceSent_.elapsed();
    if (stoppedAt_ && now - *stoppedAt_ > LongestStop) throw Left{.isLost = true};
    if (stoppedAt_ || !trip.goesOn || now < askedAt_ + BetweenQuestions) return;
    askedAt_ = now;
    if (!trip.goesOn(static_cast<int>(now))) Stop();
}

// Asking the server to stop means to connect once more, and to a server that is silent that takes its time.
void Client::Stop() {
    stoppedAt_ = sinceSent_.elapsed();
    std::promise<void> promise;
    stop_ = promise.get_future();
    std::thread([stop = PQgetCancel(connection_.get()), promise = std::move(promise)]() mutable {
        char why[256];
        PQcancel(stop, why, sizeof why);
        PQfreeCancel(stop);
        promise.set_value();
    }).detach();
}

// A request to stop that comes late must not hit the next statement.
void Client::AwaitStop() {
    if (!stop_.valid()) return;
    const bool isDone = stop_.wait_for(std::chrono::milliseconds(LongestStop)) == std::future_status::ready;
    stop_ = {};
    if (!isDone) ThrowLost();
}

void Client::ThrowLost() {
    const QString why = OneSentence(QString::fromUtf8(PQerrorMessage(connection_.get())));
    connection_.reset();
    names_.clear();
    throw ServerLost(why.isEmpty() ? Words::tr("The server of the store %1 does not answer.").arg(server_)
                                   : Words::tr("The server of the store %1 was lost: %2.").arg(server_, why));
}

}  // namespace store::postgres
