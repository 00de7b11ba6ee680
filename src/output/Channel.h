#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

#include "output/PrinterStatus.h"
#include "values/Error.h"

namespace output {

// A port, file or printer that could not be opened, written or closed. Where no handler passes over it the process
// ends.
class OutputError : public values::Error {
public:
    using values::Error::Error;
    bool EndsProgram() const override { return true; }
};

struct PortEntry;
class Sink;

// Channel 1: the one text output of the program, a port or a file at a time. Text goes out in the single-byte code page
// of the user's locale, a character that it lacks as "?"; lines end with CR LF. Every failure throws OutputError, at
// the latest from Close: what Close returned from has reached the device or the file system.
class Channel {
public:
    Channel();
    ~Channel();

    // "lpt1:" or "lpt2:", as ports.ini in the program's folder maps them.
    void OpenPort(const QString& port);
    void OpenPort(const PortEntry& entry);
    // A file, emptied or appended to; made when it is missing.
    void OpenForOutput(const QString& path);
    void OpenForAppend(const QString& path);
    bool IsOpen() const { return sink_ != nullptr; }
    // What the printer behind the port says of itself, to be asked before the first byte. Ready where ports.ini does
    // not want it asked, or what stands there cannot answer.
    PrinterState AskPrinter(PrinterFamily family) const;

    void WriteLine(const QString& line);
    void WriteBytes(const QByteArray& bytes);  // no line end: control codes
    // Puts a file's lines on the disk itself, for what must outlive a power cut.
    void Sync();
    void Close();
    // Closes what is open without a word; a handler that passes over errors leaves no channel open behind it. Lines
    // that were written before stay written if they can.
    void Abandon();
    // Closes a port without waiting for anything; what was written is lost.
    void Drop();

private:
    void RequireClosed() const;
    void RequireOpen() const;
    void Flush();

    std::unique_ptr<Sink> sink_;
    QByteArray pending_;
};

Channel& Channel1();

}  // namespace output
