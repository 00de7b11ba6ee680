#pragma once

#include <QString>

#include "store/Place.h"

namespace upkeep {

// What an owner says of the server that a shop lies on, piece by piece.
struct ServerAddress {
    enum class Encryption { WhenOffered, Always, Checked };  // the last asks for the right certificate, too

    QString host;  // as an address has it, with its port where it is another than 5432: "server", "10.0.0.5:5433"; of
                   // several the one that takes changes is meant: "server,standby"; the folder of a socket: "/run/x"
    QString database = QStringLiteral("shop");
    QString user = QStringLiteral("velton");
    QString schema = QStringLiteral("velton");
    Encryption encryption = Encryption::Always;

    // As store.ini has it; store::Place::Server says whether it can be read.
    QString Url() const;
    // What an address says of these, as far as they can say it.
    static ServerAddress Of(const store::Place& place);
};

// Keeps a password where the client library looks for it, in the file that PGPASSFILE names, else in ~/.pgpass: for
// each host of the address, before and in the place of what stood there for it. All other lines stay, and the file
// is its user's alone. Gives what the file held before, null where there was none. A FileError when it can't be
// written.
QByteArray KeepPassword(const ServerAddress& address, const QString& password);
// Takes that back.
void PutPasswordsBack(const QByteArray& before);

}  // namespace upkeep
