#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

namespace output {

// Where bytes go: an open file, device or connection. Failures throw OutputError; the destructor lets go in silence.
class Sink {
public:
    virtual ~Sink() = default;
    virtual void Write(const QByteArray& bytes) = 0;
    // Puts on the disk itself what was written; a sink that is no disk file has nothing to do.
    virtual void Sync() {}
    virtual void Close() = 0;
};

std::unique_ptr<Sink> OpenFileForOutput(const QString& path);
std::unique_ptr<Sink> OpenFileForAppend(const QString& path);
// A device that must exist already.
std::unique_ptr<Sink> OpenDevice(const QString& path);
// A printer on the network: 5 s to connect, 30 s without progress are a failure.
std::unique_ptr<Sink> ConnectTo(const QString& host, quint16 port);

}  // namespace output
