#include "store/sqlite/Disk.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "store/StoreError.h"
#include "store/sqlite/PartLock.h"

using namespace Qt::StringLiterals;

namespace store::sqlite {

namespace {

const auto Part = u".velton.part"_s;

int NumberOf(int errorNumber) {
    switch (errorNumber) {
        case ENOSPC:
        case EDQUOT:
            return DiskFull;
        case EACCES:
        case EPERM:
        case EROFS:
            return ReadOnly;
        default:
            return DiskError;
    }
}

[[noreturn]] void ThrowOs(const QString& what, int errorNumber) {
    throw StoreError(NumberOf(errorNumber), u"%1: %2."_s.arg(what, qt_error_string(errorNumber)));
}

// A link that leads nowhere lies there too.
bool LiesThere(const QString& path) {
    struct stat there = {};
    return ::lstat(QFile::encodeName(path).constData(), &there) == 0;
}

void RefuseWhatExists(const QString& path) {
    for (const QString& ending : {u""_s, u"-wal"_s, u"-journal"_s})
        if (LiesThere(path + ending)) throw StoreError(FileExists, u"The file %1 exists already."_s.arg(path + ending));
}

// A file of such a name would be taken for a part of the store beside it.
void RefuseName(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    if (name.isEmpty() || name == u"." || name == u"..")
        throw StoreError(NotSupported, u"'%1' names no file."_s.arg(path));
    for (const QString& ending : {u"-wal"_s, u"-shm"_s, u"-journal"_s})
        if (name.endsWith(ending))
            throw StoreError(NotSupported,
                             u"'%1' cannot be the name of a store, because of its ending %2."_s.arg(path, ending));
}

void RequireFolder(const QString& folder) {
    if (!QFileInfo(folder).isDir()) throw StoreError(FileNotFound, u"The folder %1 was not found."_s.arg(folder));
    if (::access(QFile::encodeName(folder).constData(), W_OK | X_OK) != 0)
        ThrowOs(u"Nothing can be written in the folder "_s + folder, errno);
}

void SyncToDisk(const QString& path, int flags) {
    const int file = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    const bool synced = file >= 0 && ::fsync(file) == 0;
    const int why = errno;
    if (file >= 0) ::close(file);
    if (!synced) ThrowOs(path + u" could not be brought to the disk"_s, why);
}

// Whatever came to lie at the place meanwhile stays.
void MoveToPlace(const QString& from, const QString& to) {
    const QByteArray source = QFile::encodeName(from), target = QFile::encodeName(to);
    int moved = ::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE);
    const bool isUnknownHere = moved != 0 && (errno == EINVAL || errno == ENOSYS);
    if (isUnknownHere) moved = ::rename(source.constData(), target.constData());
    if (moved == 0) return;
    if (errno == EEXIST) throw StoreError(FileExists, u"The file %1 exists already."_s.arg(to));
    ThrowOs(to + u" could not be made"_s, errno);
}

}  // namespace

NewFile::NewFile(const QString& path) : path_(path), temporary_(path + Part) {
    RefuseName(path_);
    const QString folder = QFileInfo(path_).absolutePath();
    RequireFolder(folder);
    RefuseWhatExists(path_);
    RemoveAbandonedParts(folder, Part);
    lock_ = std::make_unique<PartLock>(temporary_);
    if (!lock_->IsHeld()) throw StoreError(StoreLocked, u"Another program is just making %1."_s.arg(path_));
    MakeEmpty();
}

NewFile::~NewFile() {
    RemovePart(temporary_);
}

// The engine gives its other files the rights of this one.
void NewFile::MakeEmpty() const {
    constexpr mode_t itsUserAlone = 0600;
    RemovePart(temporary_);
    const int file =
        ::open(QFile::encodeName(temporary_).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, itsUserAlone);
    if (file < 0) ThrowOs(path_ + u" could not be made"_s, errno);
    ::fchmod(file, itsUserAlone);
    ::close(file);
}

void NewFile::Finish() {
    SyncToDisk(temporary_, O_RDONLY);
    RefuseWhatExists(path_);
    MoveToPlace(temporary_, path_);
    SyncToDisk(QFileInfo(path_).absolutePath(), O_RDONLY | O_DIRECTORY);
}

}  // namespace store::sqlite
