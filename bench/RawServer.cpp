#include "bench/RawServer.h"

#include <stdexcept>

#include "store/Place.h"
#include "store/SqlText.h"

namespace bench {

bool RawAnswer::IsGood() const {
    const ExecStatusType status = PQresultStatus(result_.get());
    return status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK;
}

RawServer::RawServer(const QString& address) {
    const auto place = store::Place::Server(address);
    connection_.reset(PQconnectdb(place.Address().toUtf8().constData()));
    for (const std::string& setting :
         {"SET search_path TO " + store::Quoted(place.SchemaName()), std::string("SET jit = off")})
        Execute(QByteArray::fromStdString(setting));
}

RawAnswer RawServer::Checked(RawAnswer answer) const {
    if (!answer.IsGood()) throw std::runtime_error(PQerrorMessage(connection_.get()));
    return answer;
}

void RawServer::Execute(const QByteArray& sql) {
    Checked(RawAnswer(PQexec(connection_.get(), sql.constData())));
}

void RawServer::Prepare(const char* name, const char* sql) {
    Checked(RawAnswer(PQprepare(connection_.get(), name, sql, 0, nullptr)));
}

RawAnswer RawServer::Ask(const Command& command) {
    return Checked(RawAnswer(PQexecPrepared(connection_.get(), command.name, static_cast<int>(command.values.size()),
                                            command.values.data(), nullptr, nullptr, 0)));
}

RawAnswer RawServer::AskTogether(const std::vector<Command>& commands) {
    PGconn* connection = connection_.get();
    PQenterPipelineMode(connection);
    for (const Command& command : commands)
        PQsendQueryPrepared(connection, command.name, static_cast<int>(command.values.size()), command.values.data(),
                            nullptr, nullptr, 0);
    PQpipelineSync(connection);
    RawAnswer last;
    for (size_t i = 0; i < commands.size(); ++i) {
        last = Checked(RawAnswer(PQgetResult(connection)));
        PQgetResult(connection);
    }
    RawAnswer(PQgetResult(connection));  // that the trip is over
    PQexitPipelineMode(connection);
    return last;
}

}  // namespace bench
