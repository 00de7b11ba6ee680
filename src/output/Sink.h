#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

namespace output {

// A port by its name, and whether the printer behind it is asked how it does before a receipt.
struct Port {
    QString name;  // "lpt1:"
    bool isAsked = false;
};

// Where bytes go: an open file, device or connection. Failures throw OutputError; the destructor lets go in silence.
class Sink {
public:
    virtual ~Sink() = default;
    virtual void Write(const QByteArray& bytes) = 0;
    // Puts on the disk itself what was written; a sink that is no disk file has nothing to do.
    virtual void Sync() {}
    virtual void Close() = 0;
    // Of a printer that is to be asked how it does, to be read and written; -1 where there is nothing to ask.
    virtual int AskedDescriptor() const { return -1; }
};

constexpr int StallTimeoutMs = 30000;

// A path that is no regular file (a pipe, a device) is waited for as a printer is.
std::unique_ptr<Sink> OpenFileForOutput(const QString& path);
std::unique_ptr<Sink> OpenFileForAppend(const QString& path);
// A device that must exist already: 30 s without progress are a failure.
std::unique_ptr<Sink> OpenDevice(const QString& path, const Port& port);
// A printer on the network: 5 s to find its address, 5 s to connect, 30 s without progress are a failure.
std::unique_ptr<Sink> ConnectTo(const QString& host, quint16 number, const Port& port);

}  // namespace output
