#pragma once

#include <atomic>
#include <memory>

#include "output/Descriptor.h"
#include "output/Patience.h"
#include "output/Sink.h"

namespace output {

// A device or a pipe. Its writes block, since many devices drop what is under way when they are closed and tell of a
// failure only to who waits: so they run beside the program's own thread, which asks the user's patience meanwhile.
class DeviceSink : public Sink {
public:
    // Makes the descriptor block.
    DeviceSink(int descriptor, WaitWords words, bool isAsked = false);
    ~DeviceSink() override;

    void Write(const QByteArray& bytes) override;
    void Close() override;
    int AskedDescriptor() const override { return isAsked_ ? device_->Number() : -1; }

private:
    // `work` answers with an errno.
    void Do(const std::function<int()>& work, const std::function<qint64()>& position = {});

    // Shared with a write that is left behind.
    std::shared_ptr<Descriptor> device_;
    WaitWords words_;
    bool isAsked_;
    bool failed_ = false;
};

}  // namespace output
