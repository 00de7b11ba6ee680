#include "store/sqlite/PartLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QSet>
#include <cerrno>
#include <chrono>
#include <thread>

#include "store/StoreError.h"
#include "store/Words.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace store::sqlite {

// Somebody who clears up holds the lock for a moment only.
PartLock::PartLock(const QString& part) : path_(QFile::encodeName(part + u"-lock"_s)) {
    constexpr int tries = 5;
    for (int i = 0; i < tries; ++i) {
        const Try result = Take();
        if (result == Try::Taken) return;
        if (result == Try::Busy) std::this_thread::sleep_for(20ms);
    }
}

PartLock::~PartLock() {
    if (!IsHeld()) return;
    ::unlink(path_.constData());
    ::close(descriptor_);
}

PartLock::Try PartLock::Take() {
    const int file = ::open(path_.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0)
        throw StoreError(errno == ENOSPC || errno == EDQUOT ? DiskFull : DiskError,
                         Words::tr("%1 could not be made: %2.").arg(QFile::decodeName(path_), qt_error_string(errno)));
    // Where a file system knows no locks, the process is taken to be alone.
    const bool isBusy = ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    struct stat mine = {}, there = {};
    const bool isThere = ::fstat(file, &mine) == 0 && ::stat(path_.constData(), &there) == 0 &&
                         mine.st_ino == there.st_ino && mine.st_dev == there.st_dev;
    if (!isBusy && isThere) {
        descriptor_ = file;
        return Try::Taken;
    }
    ::close(file);
    return isBusy ? Try::Busy : Try::Gone;
}

void RemovePart(const QString& part) {
    for (const QString& ending : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s}) QFile::remove(part + ending);
}

void RemoveAbandonedParts(const QString& folder, const QString& ending) {
    QSet<QString> parts;
    const QDir place(folder);
    for (const QString& name : place.entryList({u'*' + ending + u'*'}, QDir::Files | QDir::Hidden))
        parts.insert(place.filePath(name.first(name.lastIndexOf(ending) + ending.size())));
    for (const QString& part : std::as_const(parts))
        if (const PartLock lock(part); lock.IsHeld()) RemovePart(part);
}

}  // namespace store::sqlite
