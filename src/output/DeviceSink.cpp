#include "output/DeviceSink.h"

#include <cerrno>

#include <fcntl.h>
#include <termios.h>

#include "output/OsError.h"

namespace output {

namespace {

// So small that even a slow printer takes it within the limit.
constexpr qsizetype ChunkSize = 1024;

int WriteAll(int descriptor, const QByteArray& bytes, std::atomic<qint64>& taken) {
    while (taken < bytes.size()) {
        const auto size = static_cast<size_t>(std::min(ChunkSize, bytes.size() - taken));
        const ssize_t written = ::write(descriptor, bytes.constData() + taken, size);
        if (written > 0)
            taken += written;
        else if (written == 0 || errno != EINTR)
            return written == 0 ? EIO : errno;
    }
    return 0;
}

// An interrupted close has lost nothing.
int DrainAndClose(Descriptor& device) {
    if (::isatty(device.Number()) && ::tcdrain(device.Number()) != 0) return errno;
    return device.Close() == 0 || errno == EINTR ? 0 : errno;
}

}  // namespace

DeviceSink::DeviceSink(int descriptor, WaitWords words, bool isAsked)
    : device_(std::make_shared<Descriptor>(descriptor)), words_(std::move(words)), isAsked_(isAsked) {
    const int flags = ::fcntl(descriptor, F_GETFL);
    if (flags < 0 || ::fcntl(descriptor, F_SETFL, flags & ~O_NONBLOCK) < 0)
        ThrowOsError(words_.error, words_.name, errno);
}

// A terminal would hold its closing up for what nobody takes any longer.
DeviceSink::~DeviceSink() {
    if (failed_) ::tcflush(device_->Number(), TCOFLUSH);
}

void DeviceSink::Do(const std::function<int()>& work, const std::function<qint64()>& position) {
    failed_ = true;
    if (const int error = Wait(words_, StallTimeoutMs).For(work, position))
        ThrowOsError(words_.error, words_.name, error);
    failed_ = false;
}

void DeviceSink::Write(const QByteArray& bytes) {
    const auto taken = std::make_shared<std::atomic<qint64>>(0);
    Do([device = device_, bytes, taken] { return WriteAll(device->Number(), bytes, *taken); },
       [taken] { return taken->load(); });
}

// What has failed is not waited for a second time.
void DeviceSink::Close() {
    if (!failed_) Do([device = device_] { return DrainAndClose(*device); });
}

}  // namespace output
