#include "store/sqlite/Disk.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "store/StoreError.h"
#include "store/Words.h"
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

// `words` is a sentence of %1, the path, and %2, the system's own words.
[[noreturn]] void ThrowOs(const QString& words, const QString& path, int errorNumber) {
    throw StoreError(NumberOf(errorNumber), words.arg(path, qt_error_string(errorNumber)));
}

// A link that leads nowhere lies there too.
bool LiesThere(const QString& path) {
    struct stat there = {};
    return ::lstat(QFile::encodeName(path).constData(), &there) == 0;
}

void RefuseWhatExists(const QString& path) {
    for (const QString& ending : {u""_s, u"-wal"_s, u"-journal"_s})
        if (LiesThere(path + ending))
            throw StoreError(FileExists, Words::tr("The file %1 exists already.").arg(path + ending));
}

// A file of such a name would be taken for a part of the store beside it.
void RefuseName(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    if (name.isEmpty() || name == u"." || name == u"..")
        throw StoreError(NotSupported, Words::tr("'%1' names no file.").arg(path));
    for (const QString& ending : {u"-wal"_s, u"-shm"_s, u"-journal"_s})
        if (name.endsWith(ending))
            throw StoreError(
                NotSupported,
                Words::tr("'%1' cannot be the name of a store, because of its ending %2.").arg(path, ending));
}

void RequireFolder(const QString& folder) {
    if (!QFileInfo(folder).isDir())
        throw StoreError(FileNotFound, Words::tr("The folder %1 was not found.").arg(folder));
    if (::access(QFile::encodeName(folder).constData(), W_OK | X_OK) != 0)
        ThrowOs(Words::tr("Nothing can be written in the folder %1: %2."), folder, errno);
}

void SyncToDisk(const QString& path, int flags) {
    const int file = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    const bool synced = file >= 0 && ::fsync(file) == 0;
    const int why = errno;
    if (file >= 0) ::close(file);
    if (!synced) ThrowOs(Words::tr("%1 could not be brought to the disk: %2."), path, why);
}

// Whatever came to lie at the place meanwhile stays.
void MoveToPlace(const QString& from, const QString& to) {
    const QByteArray source = QFile::encodeName(from), target = QFile::encodeName(to);
    int moved = ::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE);
    const bool isUnknownHere = moved != 0 && (errno == EINVAL || errno == ENOSYS);
    if (isUnknownHere) moved = ::rename(source.constData(), target.constData());
    if (moved == 0) return;
    if (errno == EEXIST) throw StoreError(FileExists, Words::tr("The file %1 exists already.").arg(to));
    ThrowOs(Words::tr("%1 could not be made: %2."), to, errno);
}

}  // namespace

NewFile::NewFile(const QString& path) : path_(path), temporary_(path + Part) {
    RefuseName(path_);
    const QString folder = QFileInfo(path_).absolutePath();
    RequireFolder(folder);
    RefuseWhatExists(path_);
    RemoveAbandonedParts(folder, Part);
    lock_ = std::make_unique<PartLock>(temporary_);
    if (!lock_->IsHeld()) throw StoreError(StoreLocked, Words::tr("Another program is just making %1.").arg(path_));
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
    if (file < 0) ThrowOs(Words::tr("%1 could not be made: %2."), path_, errno);
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
