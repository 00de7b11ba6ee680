#include "output/Channel.h"

#include <csignal>
#include <utility>

#include "output/CodePage.h"
#include "output/Ports.h"
#include "output/Sink.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

// A receipt or a fiscal sale fits, so that who reads the file meanwhile sees it whole or not at all.
constexpr qsizetype BufferSize = qsizetype{64} * 1024;

}  // namespace

// A reader that hangs up and a file that may not grow any further are errors of a write, not the end of the process.
Channel::Channel() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

Channel::~Channel() {
    Abandon();
}

void Channel::RequireClosed() const {
    if (sink_) throw OutputError(values::ChannelInUse, u"Channel 1 is already open."_s);
}

void Channel::RequireOpen() const {
    if (!sink_) throw OutputError(values::ChannelNotOpen, u"Channel 1 is not open."_s);
}

void Channel::OpenPort(const QString& port) {
    RequireClosed();
    OpenPort(EntryOf(port));
}

void Channel::OpenPort(const PortEntry& entry) {
    RequireClosed();
    sink_ = OpenSink(entry);
}

void Channel::OpenForOutput(const QString& path) {
    RequireClosed();
    sink_ = OpenFileForOutput(path);
}

void Channel::OpenForAppend(const QString& path) {
    RequireClosed();
    sink_ = OpenFileForAppend(path);
}

PrinterState Channel::AskPrinter(PrinterFamily family) const {
    RequireOpen();
    return StateOf(*sink_, family);
}

// Receipts are written by the ten thousand: the text goes straight into the buffer.
void Channel::WriteLine(const QString& line) {
    RequireOpen();
    AppendInCodePage(pending_, line);
    AppendInCodePage(pending_, u"\r\n");
    if (pending_.size() >= BufferSize) Flush();
}

void Channel::WriteBytes(const QByteArray& bytes) {
    RequireOpen();
    pending_ += bytes;
    if (pending_.size() >= BufferSize) Flush();
}

// What a failed write left over is dropped: nobody knows how much of it went out, and a second try would double it.
void Channel::Flush() {
    const QByteArray bytes = std::exchange(pending_, {});
    if (!bytes.isEmpty()) sink_->Write(bytes);
}

void Channel::Sync() {
    RequireOpen();
    Flush();
    sink_->Sync();
}

void Channel::Close() {
    RequireOpen();
    const auto sink = std::move(sink_);
    const QByteArray bytes = std::exchange(pending_, {});
    if (!bytes.isEmpty()) sink->Write(bytes);
    sink->Close();
}

void Channel::Abandon() {
    if (!sink_) return;
    try {
        Close();
    } catch (const OutputError&) {
        // The error that brought us here is the one to tell.
    }
}

void Channel::Drop() {
    sink_.reset();
    pending_.clear();
}

Channel& Channel1() {
    static Channel channel;
    return channel;
}

}  // namespace output
