#include "values/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace values {

FileLock::FileLock(const QString& path, On on, When when) {
    constexpr mode_t itsUserAlone = 0600;
    const QByteArray name = QFile::encodeName(path);
    const int file = on == On::Folder ? ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)
                                      : ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, itsUserAlone);
    if (file < 0) {
        if (on == On::Folder) throw Error(PathNotFound, u"The folder %1 can't be opened."_s.arg(path));
        throw FileError(NumberOfOsError(errno), u"Cannot open '%1': %2"_s.arg(path, qt_error_string(errno)));
    }
    int result = 0;
    do result = ::flock(file, LOCK_EX | (when == When::Now ? LOCK_NB : 0));
    while (result != 0 && errno == EINTR);
    if (result == 0)
        descriptor_ = file;
    else
        ::close(file);
}

FileLock::~FileLock() {
    if (IsHeld()) ::close(descriptor_);
}

}  // namespace values
