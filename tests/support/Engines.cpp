#include "support/Engines.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <libpq-fe.h>

#include <memory>
#include <stdexcept>

#include "store/StorePath.h"
#include "support/Server.h"

using namespace Qt::StringLiterals;

namespace drivers {

bool OnServer() {
    return qgetenv("VELTON_TESTS_ON") == "server";
}

QString ServerForTest() {
    return OnServer() ? Server::Running().NewShop() : QString();
}

void DoBehind(const QString& programFolder, const QString& onFile, const QString& onServer) {
    const store::Place place = store::MainPlace(programFolder);
    if (!place.IsServer()) {
        SQLite::Database(place.Path().toStdString(), SQLite::OPEN_READWRITE).exec(onFile.toStdString());
        return;
    }
    const std::unique_ptr<PGconn, void (*)(PGconn*)> server(PQconnectdb(place.Address().toUtf8()), PQfinish);
    const QString sql =
        u"SET client_min_messages = warning; SET search_path = %1; %2"_s.arg(place.SchemaName(), onServer);
    const std::unique_ptr<PGresult, void (*)(PGresult*)> result(PQexec(server.get(), sql.toUtf8()), PQclear);
    if (PQresultStatus(result.get()) != PGRES_COMMAND_OK) throw std::runtime_error(PQerrorMessage(server.get()));
}

}  // namespace drivers
