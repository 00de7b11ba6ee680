#include "values/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <chrono>
#include <thread>

#include "values/FileError.h"
#include "values/Words.h"

namespace values {

namespace {

constexpr auto BetweenTries = std::chrono::milliseconds(5);
constexpr int Tries = 100;

}  // namespace

FileLock::FileLock(const QString& path, On on, When when) {
    constexpr mode_t itsUserAlone = 0600;
    const QByteArray name = QFile::encodeName(path);
    const int file = on == On::Folder ? ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)
                                      : ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, itsUserAlone);
    if (file < 0) {
        if (on == On::Folder) throw Error(PathNotFound, Words::tr("The folder %1 can't be opened.").arg(path));
        throw FileError(NumberOfOsError(errno), Words::tr("Cannot open '%1': %2").arg(path, qt_error_string(errno)));
    }
    int result = ::flock(file, LOCK_EX | LOCK_NB);
    for (int tries = when == When::Now ? 0 : Tries; result != 0 && tries > 0; --tries) {
        std::this_thread::sleep_for(BetweenTries);
        result = ::flock(file, LOCK_EX | LOCK_NB);
    }
    if (result == 0)
        descriptor_ = file;
    else
        ::close(file);
}

FileLock::~FileLock() {
    if (IsHeld()) ::close(descriptor_);
}

}  // namespace values
