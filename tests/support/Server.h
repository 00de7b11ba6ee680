#pragma once

#include <QTemporaryDir>
#include <cstdio>
#include <string>
#include <vector>

namespace drivers {

// A folder, database or schema as it stands in an address.
QString InUrl(const QString& text);

// A PostgreSQL server of its own, on a socket in a temporary folder and nowhere else. Neither the server nor the folder
// outlives the process, even when that is killed. Under root it runs as an ordinary user, as postgres insists.
class Server {
public:
    Server();
    // With its folder elsewhere, by a template as QTemporaryDir takes it.
    explicit Server(const QString& folderTemplate);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    // The one that the tests of a process share, started by the first who asks. A test that takes it down brings it up
    // again.
    static Server& Running();

    // Where the socket lies.
    QString Folder() const { return folder_.path(); }
    QString Url(const QString& database, const QString& schema = {}) const;
    // The address of a schema that nobody has used, in the database "shops".
    QString NewShop();

    // Settings as "name=value", besides those for tests and over them. A running server is stopped first; afterwards it
    // takes connections.
    void Start(const std::vector<std::string>& settings = {});
    // As an administrator does: who is connected is thrown out.
    void Stop() { End("stop\n"); }
    // As the machine does that fails: all its processes are gone at once.
    void Kill() { End("kill\n"); }

private:
    void Tell(const std::string& command);
    void End(const std::string& command);
    bool HasEnded() const;

    QTemporaryDir folder_;
    FILE* shell_;
    bool runs_ = false;
    int shops_ = 0;
};

}  // namespace drivers
