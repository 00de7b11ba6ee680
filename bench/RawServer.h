#pragma once

#include <libpq-fe.h>

#include <QByteArray>
#include <QString>
#include <memory>
#include <vector>

namespace bench {

// What the server answered to one statement.
class RawAnswer {
public:
    RawAnswer() = default;
    explicit RawAnswer(PGresult* result) : result_(result) {}
    int Rows() const { return PQntuples(result_.get()); }
    qint64 Affected() const { return QByteArrayView(PQcmdTuples(result_.get())).toLongLong(); }
    const char* Bytes(int row, int column) const { return PQgetvalue(result_.get(), row, column); }
    qint64 Integer(int row, int column) const { return std::strtoll(Bytes(row, column), nullptr, 10); }
    QString Text(int row, int column) const {
        return QString::fromUtf8(Bytes(row, column), PQgetlength(result_.get(), row, column));
    }
    bool IsGood() const;

private:
    struct Clear {
        void operator()(PGresult* result) const { PQclear(result); }
    };
    std::unique_ptr<PGresult, Clear> result_;
};

// A server used by hand: statements that are prepared once by name, with no more around them than the calls themselves.
class RawServer {
public:
    // An address with a schema.
    explicit RawServer(const QString& address);

    void Execute(const QByteArray& sql);
    void Prepare(const char* name, const char* sql);

    // A prepared statement with its values, which live as long as the call.
    struct Command {
        const char* name;
        std::vector<const char*> values = {};
    };
    RawAnswer Ask(const Command& command);
    // All in one trip; the answer of the last.
    RawAnswer AskTogether(const std::vector<Command>& commands);

private:
    RawAnswer Checked(RawAnswer answer) const;

    struct Finish {
        void operator()(PGconn* connection) const { PQfinish(connection); }
    };
    std::unique_ptr<PGconn, Finish> connection_;
};

}  // namespace bench
