#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

#include "output/Descriptor.h"
#include "output/DeviceSink.h"
#include "output/OsError.h"
#include "output/Sink.h"
#include "output/Words.h"

namespace output {

namespace {

class FileSink : public Sink {
public:
    FileSink(int descriptor, QString name) : file_(descriptor), name_(std::move(name)) {}

    void Write(const QByteArray& bytes) override;
    void Sync() override;
    void Close() override;

private:
    Descriptor file_;
    QString name_;
};

// A piece goes in whole or not at all: half a fiscal sale at the end of the file would run into the next one.
void FileSink::Write(const QByteArray& bytes) {
    struct stat before {};
    ::fstat(file_.Number(), &before);
    const char* from = bytes.constData();
    const char* const end = from + bytes.size();
    while (from < end) {
        const ssize_t written = ::write(file_.Number(), from, static_cast<size_t>(end - from));
        if (written > 0) {
            from += written;
        } else if (written == 0 || errno != EINTR) {
            const int why = written == 0 ? EIO : errno;
            if (from != bytes.constData() && ::ftruncate(file_.Number(), before.st_size) != 0)
                ThrowOsError(Words::tr("Cannot take back half of what was written to %1: %2."), name_, errno);
            ThrowOsError(Words::tr("Cannot write to %1: %2."), name_, why);
        }
    }
}

void FileSink::Sync() {
    if (::fdatasync(file_.Number()) != 0 && errno != EINVAL && errno != EROFS)
        ThrowOsError(Words::tr("Cannot save %1: %2."), name_, errno);
}

void FileSink::Close() {
    // An interrupted close has lost nothing.
    if (file_.Close() != 0 && errno != EINTR) ThrowOsError(Words::tr("Cannot write to %1: %2."), name_, errno);
}

// A new file belongs to its user alone, and to a group as well where the folder hands its own on to what is made in it
// (setgid): so a program of another user can be let at the fiscal file.
mode_t ModeIn(const QString& folder) {
    constexpr mode_t user = 0600, group = 0060;
    struct stat there = {};
    const bool handsGroupOn = ::stat(QFile::encodeName(folder).constData(), &there) == 0 && (there.st_mode & S_ISGID);
    return handsGroupOn ? user | (there.st_mode & group) : user;
}

// Opening never waits: a pipe without a reader would hold the till for good.
int Open(const QString& path, int flags) {
    const QByteArray name = QFile::encodeName(path);
    const bool isNew = (flags & O_CREAT) != 0 && ::access(name.constData(), F_OK) != 0;
    const mode_t mode = ModeIn(QFileInfo(path).absolutePath());
    int descriptor;
    do {
        descriptor = ::open(name.constData(), flags | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, mode);
    } while (descriptor < 0 && errno == EINTR);
    if (isNew && descriptor >= 0) ::fchmod(descriptor, mode);  // whatever the umask
    return descriptor;
}

bool IsRegular(int descriptor) {
    struct stat facts {};
    return ::fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode);
}

std::unique_ptr<Sink> OpenFile(const QString& path, int flags) {
    const int descriptor = Open(path, flags | O_WRONLY | O_CREAT);
    if (descriptor < 0) ThrowOsError(Words::tr("Cannot open %1: %2."), path, errno);
    if (IsRegular(descriptor)) return std::make_unique<FileSink>(descriptor, path);
    return std::make_unique<DeviceSink>(
        descriptor, WaitWords{Words::tr("Cannot write to %1: %2."),
                              Words::tr("Waiting for %1, which takes nothing now.").arg(path), path});
}

bool IsCharacterDevice(const QString& path) {
    struct stat facts {};
    return ::stat(QFile::encodeName(path).constData(), &facts) == 0 && S_ISCHR(facts.st_mode);
}

// For reading as well where the printer's own words are wanted and the device lets itself be read.
int OpenAsked(const QString& path, bool& isAsked) {
    isAsked = isAsked && IsCharacterDevice(path);
    const int descriptor = isAsked ? Open(path, O_APPEND | O_RDWR) : -1;
    if (descriptor >= 0) return descriptor;
    isAsked = false;
    return Open(path, O_APPEND | O_WRONLY);
}

}  // namespace

std::unique_ptr<Sink> OpenFileForOutput(const QString& path) {
    return OpenFile(path, O_TRUNC);
}

std::unique_ptr<Sink> OpenFileForAppend(const QString& path) {
    return OpenFile(path, O_APPEND);
}

std::unique_ptr<Sink> OpenDevice(const QString& path, const Port& port) {
    bool isAsked = port.isAsked;
    const int descriptor = OpenAsked(path, isAsked);
    if (descriptor < 0)
        ThrowOsError(Words::tr("Cannot open the printer %1: %2."), path, errno == ENOENT ? ENODEV : errno);
    return std::make_unique<DeviceSink>(
        descriptor, WaitWords{Words::tr("Cannot write to the printer %1: %2."), WaitsForPrinter(port.name, path), path},
        isAsked);
}

}  // namespace output
