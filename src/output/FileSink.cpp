#include <QFile>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "output/Channel.h"
#include "output/OsError.h"
#include "output/Sink.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

class FileSink : public Sink {
public:
    FileSink(int descriptor, QString name) : descriptor_(descriptor), name_(std::move(name)) {}
    FileSink(const FileSink&) = delete;
    FileSink& operator=(const FileSink&) = delete;
    ~FileSink() override {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    void Write(const QByteArray& bytes) override;
    void Sync() override;
    void Close() override;

private:
    int descriptor_;
    QString name_;
};

void FileSink::Write(const QByteArray& bytes) {
    const char* from = bytes.constData();
    const char* const end = from + bytes.size();
    while (from < end) {
        const ssize_t written = ::write(descriptor_, from, static_cast<size_t>(end - from));
        if (written > 0) {
            from += written;
        } else if (written == 0 || errno != EINTR) {
            ThrowOsError(u"Cannot write to "_s + name_, written == 0 ? EIO : errno);
        }
    }
}

void FileSink::Sync() {
    // A pipe or a device cannot be synced, and says so with EINVAL.
    if (::fdatasync(descriptor_) != 0 && errno != EINVAL && errno != EROFS)
        ThrowOsError(u"Cannot save "_s + name_, errno);
}

void FileSink::Close() {
    // The descriptor is gone whatever close answers; an interrupted close has lost nothing.
    if (::close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR)
        ThrowOsError(u"Cannot write to "_s + name_, errno);
}

int Open(const QString& path, int flags) {
    // A reader that hangs up is an error of the write, not the end of the process.
    [[maybe_unused]] static const auto before = std::signal(SIGPIPE, SIG_IGN);
    const QByteArray name = QFile::encodeName(path);
    int descriptor;
    do {
        descriptor = ::open(name.constData(), flags | O_WRONLY | O_CLOEXEC | O_NOCTTY, 0666);
    } while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

std::unique_ptr<Sink> OpenFile(const QString& path, int flags) {
    const int descriptor = Open(path, flags | O_CREAT);
    if (descriptor < 0) ThrowOsError(u"Cannot open "_s + path, errno);
    return std::make_unique<FileSink>(descriptor, path);
}

}  // namespace

std::unique_ptr<Sink> OpenFileForOutput(const QString& path) {
    return OpenFile(path, O_TRUNC);
}

std::unique_ptr<Sink> OpenFileForAppend(const QString& path) {
    return OpenFile(path, O_APPEND);
}

std::unique_ptr<Sink> OpenDevice(const QString& path) {
    // Opening must not wait, or a pipe without a reader would hold the till for good; writing must, since a device that
    // is closed with bytes under way drops them.
    const int descriptor = Open(path, O_APPEND | O_NONBLOCK);
    if (descriptor < 0) ThrowOsError(u"Cannot open the printer "_s + path, errno == ENOENT ? ENODEV : errno);
    auto sink = std::make_unique<FileSink>(descriptor, path);
    const int flags = ::fcntl(descriptor, F_GETFL);
    if (flags < 0 || ::fcntl(descriptor, F_SETFL, flags & ~O_NONBLOCK) < 0)
        ThrowOsError(u"Cannot open the printer "_s + path, errno);
    return sink;
}

}  // namespace output
