#include "store/postgres/Connection.h"

#include "store/SqlText.h"
#include "store/Words.h"
#include "store/postgres/ServerError.h"

namespace store::postgres {

namespace {

const Arguments None;

// So long after a trip began, in milliseconds, its slowness is somebody's wait.
constexpr int WriteWaitsAfter = 30;
constexpr int ReadWaitsAfter = 250;

const std::string BeginSql = "BEGIN";
const std::string CommitSql = "COMMIT";
const std::string RollbackSql = "ROLLBACK";
const std::string MarkSql = "SAVEPOINT velton";
const std::string UnmarkSql = "RELEASE SAVEPOINT velton";
const std::string BackToMarkSql = "ROLLBACK TO SAVEPOINT velton";
const std::string RelaxSql = "SET synchronous_commit = off";
// A setval is always written to the log, and so its commit takes all before it to the disk.
const std::string FlushSql = "SELECT setval('velton_burst', 1)";

// The same for every program that works on a shop: FNV-1a of its schema's and a table's name.
std::string LockKey(const QString& name) {
    quint32 hash = 2166136261u;
    for (const char byte : name.toUtf8()) hash = (hash ^ static_cast<unsigned char>(byte)) * 16777619u;
    return std::to_string(static_cast<qint32>(hash));
}

std::string LockSql(const QString& schema, Connection::Right right, const Table* table) {
    using Right = Connection::Right;
    const std::string shared = right == Right::ToWriteMany ? "" : "_shared";
    std::string sql = "SELECT pg_advisory_xact_lock" + shared + "(" + LockKey(schema) + ", 0)";
    if (right == Right::ToAdd) sql += ", pg_advisory_xact_lock(" + LockKey(schema) + ", " + LockKey(table->name) + ")";
    return sql;
}

}  // namespace

Connection::Connection(Place place) : place_(std::move(place)) {
    Connect();
}

// What a role or a server may have set otherwise. A till that vanished in a batch must not hold the others up for long:
// its server notices within seconds on a network, and after a minute in any case.
void Connection::Connect() {
    client_.reset();
    auto client = std::make_unique<Client>(place_, Questions(Kind::Read));
    static const std::string settings =
        "SELECT set_config('synchronous_commit', CASE current_setting('synchronous_commit') WHEN 'off' THEN 'on' ELSE "
        "current_setting('synchronous_commit') END, false), set_config('search_path', $1, false), "
        "set_config('default_transaction_isolation', 'read committed', false), "
        "set_config('statement_timeout', '0', false), set_config('idle_in_transaction_session_timeout', '60s', false), "
        "set_config('tcp_keepalives_idle', '4', false), set_config('tcp_keepalives_interval', '2', false), "
        "set_config('tcp_keepalives_count', '3', false), set_config('tcp_user_timeout', '8s', false), "
        "set_config('standard_conforming_strings', 'on', false), set_config('extra_float_digits', '1', false), "
        "set_config('client_min_messages', 'warning', false), "
        "set_config('jit', 'off', false)";  // compiling costs more than these statements take
    Arguments path;
    path.Add(QByteArray::fromStdString(Quoted(place_.SchemaName())));
    const Answer answer = client->Make({{{settings, path}}});
    durably_ = "SET synchronous_commit = " + answer.At(0, 0).toByteArray().toStdString();
    client_ = std::move(client);
    if (!patience_.empty()) client_->Make({{{patience_, None}}});
}

void Connection::SetPatience(int milliseconds) {
    patience_ = "SET lock_timeout = " + std::to_string(milliseconds);
    Read(patience_);
}

// Nothing must go on as if what was begun with a lost connection were there.
void Connection::RequireConnection() {
    if (!batchIsLost_ && !burstIsLost_ && client_) {
        if (client_->IsAlive()) return;
        Lose();
    }
    if (batchIsLost_) ThrowBatchLost();
    if (burstIsLost_) ThrowBurstLost();
    Connect();
}

void Connection::Lose() {
    client_.reset();
    batchIsLost_ = inTransaction_;
    burstIsLost_ = hasRelaxed_;
    inTransaction_ = isRelaxed_ = false;
}

void Connection::ThrowBatchLost() const {
    throw ServerLost(
        Words::tr("The server of the store %1 was lost while many changes were being stored; none of them is.")
            .arg(place_.Shown()));
}

void Connection::ThrowBurstLost() const {
    throw ServerLost(Words::tr("The server of the store %1 was lost while a sale was being stored; how much of it is, "
                               "is not known.")
                         .arg(place_.Shown()));
}

Client::GoesOn Connection::Questions(Kind kind) {
    if (working_) return [this](int) { return working_(); };
    if (!beginWait_) return {};
    const int after = kind == Kind::Write ? WriteWaitsAfter : ReadWaitsAfter;
    return [this, after, goesOn = std::function<bool()>()](int milliseconds) mutable {
        if (milliseconds < after) return true;
        if (!goesOn) goesOn = beginWait_();
        return !goesOn || goesOn();
    };
}

void Connection::ThrowLeft(Kind kind) const {
    if (working_ || kind == Kind::Read) throw StoreError(Cancelled, Words::tr("The work was left."));
    throw StoreError(StoreLocked, Words::tr("The store is locked by another user, and the wait for it was left."));
}

Answer Connection::Make(Kind kind, const std::vector<Command>& commands, size_t main, const Client::TakeRow& takeRow) {
    try {
        return client_->Make({commands, main, Questions(kind), takeRow});
    } catch (const Client::Left& left) {
        const bool isOpen = left.isLost && kind == Kind::Write && !inTransaction_;
        if (left.isLost) Lose();
        if (!isOpen) ThrowLeft(kind);
        throw ServerLost(
            Words::tr("The server of the store %1 was lost while the last change was being stored; whether "
                      "it is, is not known.")
                .arg(place_.Shown()),
            ServerLost::Write::UnderWay);
    } catch (const ServerLost& error) {
        const bool isOpen = kind == Kind::Write && !inTransaction_;
        Lose();
        if (!isOpen) throw;
        throw ServerLost(Words::tr("%1 Whether the last change is stored is not known.").arg(error.Description()),
                         ServerLost::Write::UnderWay);
    }
}

// The server gives up a whole transaction at its first error, unless there is a mark to go back to.
Answer Connection::MakeInBatch(Kind kind, const std::vector<Command>& commands, const Client::TakeRow& takeRow) {
    std::vector<Command> marked = {{MarkSql, None}};
    marked.insert(marked.end(), commands.begin(), commands.end());
    marked.emplace_back(UnmarkSql, None);
    try {
        return Make(kind, marked, commands.size(), takeRow);
    } catch (const StoreError& error) {
        const bool undoesAll = error.Number() == DiskFull || error.Number() == DiskError ||
                               (kind == Kind::Write && error.Number() == Cancelled);
        if (inTransaction_) undoesAll ? Rollback() : BackToMark();
        throw;
    }
}

// A batch that cannot go back is lost, whatever was refused.
void Connection::BackToMark() {
    try {
        client_->Make({{{BackToMarkSql, None}}});
    } catch (const StoreError&) {
        Lose();
        RequireConnection();
    }
}

// A read can be asked again where nothing hangs on what was before.
Answer Connection::Read(const std::string& sql, const Arguments& arguments, const Client::TakeRow& takeRow) {
    RequireConnection();
    if (inTransaction_) return MakeInBatch(Kind::Read, {{sql, arguments}}, takeRow);
    bool hasRows = false;
    const auto noteRow = [&](const Answer& row) {
        hasRows = true;
        takeRow(row);
    };
    const auto once = [&] {
        return Make(Kind::Read, {{sql, arguments}}, 0, takeRow ? Client::TakeRow(noteRow) : Client::TakeRow());
    };
    try {
        return once();
    } catch (const ServerLost&) {
        if (hasRows) throw;
    }
    RequireConnection();
    return once();
}

Answer Connection::Write(Right right, const Table* table, const std::string& sql, const Arguments& arguments) {
    RequireConnection();
    if (inTransaction_) return MakeInBatch(Kind::Write, {{sql, arguments}});
    return MakeAlone(right, table, {sql, arguments});
}

void Connection::WriteAll(const std::vector<Command>& commands) {
    RequireConnection();
    if (!inTransaction_) throw StoreError(NotSupported, Words::tr("No batch is open."));
    MakeInBatch(Kind::Write, commands);
}

void Connection::ReadTogether(const std::function<void()>& work) {
    if (inTransaction_) return work();
    static const std::string begin = "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY";
    RequireConnection();
    Make(Kind::Read, {{begin, None}}, 0);
    inTransaction_ = true;
    try {
        work();
    } catch (...) {
        Rollback();
        throw;
    }
    Rollback();
}

Answer Connection::MakeAlone(Right right, const Table* table, const Command& command) {
    std::string& lock = locks_[{right, table}];
    if (lock.empty()) lock = LockSql(place_.SchemaName(), right, table);
    std::vector<Command> all;
    const bool relaxes = bursts_ > 0 && !isRelaxed_;
    if (relaxes) all.emplace_back(RelaxSql, None);
    all.emplace_back(lock, None);
    all.push_back(command);
    Answer answer = Make(Kind::Write, all, all.size() - 1);
    if (relaxes) isRelaxed_ = true;
    hasRelaxed_ = isRelaxed_;
    return answer;
}

void Connection::Begin() {
    if (inTransaction_) throw StoreError(NotSupported, Words::tr("A batch is open already."));
    RequireConnection();
    const std::string lock = LockSql(place_.SchemaName(), Right::ToWriteMany, nullptr);
    inTransaction_ = true;  // nothing can have been stored by what is lost from here on
    try {
        Make(Kind::Write, {{BeginSql, None}, {lock, None}}, 1);
    } catch (const StoreError&) {
        Rollback();
        throw;
    }
}

void Connection::Commit() {
    if (std::exchange(batchIsLost_, false)) ThrowBatchLost();
    if (!inTransaction_) throw StoreError(NotSupported, Words::tr("No batch is open."));
    if (!client_->IsAlive()) {
        Lose();
        batchIsLost_ = false;
        ThrowBatchLost();
    }
    inTransaction_ = false;  // so that a loss on the way is told as what it is
    try {
        Make(Kind::Write, {{CommitSql, None}}, 0);
    } catch (const ServerLost&) {
        throw;
    } catch (const StoreError&) {
        SendRollback();
        throw;
    }
    hasRelaxed_ = isRelaxed_;
    if (bursts_ == 0) EndRelaxed();
}

void Connection::Rollback() noexcept {
    batchIsLost_ = false;
    if (!std::exchange(inTransaction_, false)) return;
    SendRollback();
    try {
        if (bursts_ == 0) EndRelaxed();
    } catch (const StoreError&) {
        return;  // the connection is given up, and the next one is durable from its beginning
    }
}

void Connection::SendRollback() noexcept {
    if (!client_) return;
    try {
        client_->Make({{{RollbackSql, None}}});
    } catch (...) {
        Lose();
    }
}

void Connection::EndBurst() {
    if (--bursts_ > 0 || inTransaction_) return;
    if (std::exchange(burstIsLost_, false)) {
        hasRelaxed_ = false;
        ThrowBurstLost();
    }
    EndRelaxed();
}

void Connection::EndRelaxed() {
    if (!isRelaxed_) return;
    try {
        Make(Kind::Write, {{durably_, None}, {FlushSql, None}}, 1);
    } catch (...) {
        client_.reset();  // the next one begins with the server's own setting
        isRelaxed_ = hasRelaxed_ = burstIsLost_ = false;
        throw;
    }
    isRelaxed_ = hasRelaxed_ = false;
}

}  // namespace store::postgres
